// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "almanac/DayCalendar.h"
#include "almanac/HijriCalendar.h"
#include "almanac/MonthStartPrediction.h"
#include "almanac/SourceTables.h"
#include "almanac/SourceTexts.h"
#include "almanac/SunTable.h"
#include "data/IntValue.h"
#include "tests/support/FixtureDatabase.h"
#include "text/Utility.h"

#include <algorithm>
#include <map>
#include <set>

namespace kavenda {
namespace {

using namespace almanac;

constexpr int ramadan = 9;
constexpr const char* qudsDay = "روز جهانی قدس";
constexpr const char* eightRabiAlAwwal = "شهادت امام حسن عسکری (ع)";

struct EventDay {
    int year, month, day;
    std::string description;
    bool holiday;
    bool has(const std::string& name) const
    {
        return ("@" + description + "@").find("@" + name + "@") != std::string::npos;
    }
};

// The shipped database, its events by Julian day number: one row per day from 1 Farvardin 1392
// in stored order, which the invariant tests check.
class OfficialCalendar : public test::WorkingCopy {
protected:
    OfficialCalendar() : WorkingCopy({}), table(readHijriMonthStarts(texts::hijriMonthStarts))
    {
        long day = julianDayNumber(2013, 3, 21);
        for (const Row& row : db.Execute("SELECT Date, Description, IsHoliday FROM tEvents")) {
            const int key = intValue(row.at("Date"));
            days[day++] = {key / 10000 + 1300, key / 100 % 100, key % 100, row.at("Description"),
                           row.at("IsHoliday") == "1"};
        }
        lastDay = day - 1;
    }

    const EventDay& at(long day) const { return days.at(day); }

    // The months of the table, and after it predicted ones, as the generator's years took them.
    HijriCalendar predictedThrough(long last)
    {
        return HijriCalendar(table, julianDayNumber(2013, 3, 21), last,
                             [this](int year, int month) { return predictedFirstDay(sun, year, month); });
    }

    // The days of the holidays that the rules give in one solar year: the solar ones by their
    // date, the lunar ones by the Hijri months `months` (day 30 of a 29-day month is its last).
    std::set<long> holidaysByTheRules(const std::vector<HijriMonthStart>& months, int year) const
    {
        std::set<long> expected;
        const std::vector<Occasion> solar = readOccasions(texts::solarOccasions);
        for (const auto& [day, e] : days)
            for (const Occasion& o : solar)
                if (e.year == year && o.month == e.month && o.day == e.day && o.holidayIn(year))
                    expected.insert(day);
        const std::vector<Occasion> lunar = readOccasions(texts::lunarOccasions);
        for (std::size_t i = 0; i + 1 < months.size(); ++i) {
            const long length = months[i + 1].firstDay - months[i].firstDay;
            for (const Occasion& o : lunar) {
                const long day = months[i].firstDay + std::min<long>(o.day, length) - 1;
                if (o.month == months[i].month && days.count(day) && at(day).year == year && o.holidayIn(year))
                    expected.insert(day);
            }
        }
        return expected;
    }

    std::set<long> holidaysInTheDatabase(int year) const
    {
        std::set<long> marked;
        for (const auto& [day, e] : days)
            if (e.holiday && e.year == year)
                marked.insert(day);
        return marked;
    }

    std::vector<HijriMonthStart> table;
    SunTable sun;
    std::map<long, EventDay> days;
    long lastDay = 0;
};

// Their holidays are NoHolidayBeyondTheRules' to check.
TEST_F(OfficialCalendar, LunarOccasionsFallOnTheOfficialDaysOfTheTable)
{
    const std::vector<Occasion> lunar = readOccasions(texts::lunarOccasions);
    int checked = 0;
    for (std::size_t i = 0; i + 1 < table.size(); ++i) {
        const long length = table[i + 1].firstDay - table[i].firstDay;
        for (const Occasion& o : lunar) {
            const long day = table[i].firstDay + std::min<long>(o.day, length) - 1;
            if (o.month != table[i].month || !days.count(day) || at(day).year < 1393 || at(day).year > 1405)
                continue;
            EXPECT_TRUE(at(day).has(o.name))
                << o.name << " on " << at(day).year << "/" << at(day).month << "/" << at(day).day;
            ++checked;
        }
    }
    EXPECT_GT(checked, 13 * 17);  // some 17 lunar holidays a year for 13 years, and more occasions
}

TEST_F(OfficialCalendar, EightRabiAlAwwalIsAHolidayFrom1396)
{
    std::set<int> years;
    for (const auto& [day, e] : days) {
        if (!e.has(eightRabiAlAwwal))
            continue;
        years.insert(e.year);
        EXPECT_EQ(e.holiday, e.year >= 1396) << e.year << "/" << e.month << "/" << e.day;
    }
    for (int year = 1392; year <= 1410; ++year)
        EXPECT_TRUE(years.count(year) || year == 1406) << year;  // 1406 has none: 1449's falls in 1407
}

TEST_F(OfficialCalendar, TheQudsDayIsTheLastFridayOfRamadanEveryYear)
{
    const HijriCalendar hijri = predictedThrough(lastDay);
    std::map<int, int> perYear, perRamadan;
    for (const auto& [day, e] : days) {
        const HijriDate date = hijri.on(day);
        const bool lastFriday = date.month == ramadan && weekday(day) == friday && date.day + 7 > date.monthLength;
        EXPECT_EQ(e.has(qudsDay), lastFriday) << e.year << "/" << e.month << "/" << e.day;
        if (e.has(qudsDay)) {
            ++perYear[e.year];
            ++perRamadan[date.year];
        }
    }
    // A solar year may hold the ends of two Ramadans (1404 does); every year has one.
    for (int year = 1392; year <= 1410; ++year)
        EXPECT_GE(perYear[year], 1) << year;
    for (const auto& [year, count] : perRamadan)
        EXPECT_EQ(count, 1) << year;
    EXPECT_EQ(perYear[1404], 2);
}

TEST_F(OfficialCalendar, NoHolidayBeyondTheRules)
{
    // Within the table the months are the official ones; after it, the predicted ones.
    const HijriCalendar hijri = predictedThrough(lastDay);
    for (int year = 1393; year <= 1410; ++year) {
        const std::set<long> expected = holidaysByTheRules(year <= 1405 ? table : hijri.months(), year);
        const std::set<long> marked = holidaysInTheDatabase(year);
        for (long day : marked)
            EXPECT_TRUE(expected.count(day))
                << "extra holiday " << at(day).month << "/" << at(day).day << " " << at(day).description;
        for (long day : expected)
            EXPECT_TRUE(marked.count(day))
                << "missing holiday " << at(day).month << "/" << at(day).day << " " << at(day).description;
        EXPECT_GE(marked.size(), 24u) << year;
    }
}

TEST_F(OfficialCalendar, Year1392IsItsOfficialCalendar)
{
    std::map<int, std::pair<std::string, bool>> official;
    for (const Occasion& o : readOccasions(texts::occasions1392, 1)) {
        auto& [names, holiday] = official[o.month * 100 + o.day];
        names += (names.empty() ? "" : "@") + o.name;
        holiday = holiday || o.holidayIn(1392);
    }
    for (const auto& [day, e] : days) {
        const auto it = official.find(e.month * 100 + e.day);
        EXPECT_TRUE(e.year != 1392
                    || std::pair(e.description, e.holiday)
                        == (it == official.end() ? std::pair(std::string(), false) : it->second))
            << e.month << "/" << e.day << " " << e.description;
    }
    EXPECT_EQ(holidaysInTheDatabase(1392).size(), 26u);
}

using IconsInvariants = OfficialCalendar;

constexpr std::size_t provinceCount = 31;

TEST_F(IconsInvariants, PlacesAreTheProvincesAndTheirCentres)
{
    // Provinces, centres, identifiers; provinces without exactly one centre, cities without a province.
    EXPECT_EQ(scalar("SELECT SUM(ParentID IS NULL AND IsCenter = 0) || ' ' || SUM(IsCenter = 1) || ' ' || "
                     "MIN(StateID) || '-' || MAX(StateID) FROM tStates"),
              "31 31 1-62");
    EXPECT_EQ(scalar("SELECT (SELECT COUNT(*) FROM tStates p WHERE p.ParentID IS NULL AND "
                     "(SELECT COUNT(*) FROM tStates c WHERE c.ParentID = p.StateID AND c.IsCenter = 1) <> 1) + "
                     "(SELECT COUNT(*) FROM tStates c LEFT JOIN tStates p ON c.ParentID = p.StateID "
                     "WHERE c.ParentID IS NOT NULL AND (p.StateID IS NULL OR p.ParentID IS NOT NULL))"),
              "0");
    // Names use the Persian letter forms that typed searches are normalised to.
    for (const Row& row : db.Execute("SELECT Name FROM tStates"))
        EXPECT_EQ(Utility::GetProperString(row.at("Name")), row.at("Name"));
}

// The fixture numbers the rows in stored order from 1 Farvardin 1392: the calendar reads them so.
TEST_F(IconsInvariants, OneEventsRowForEveryDayInDateOrder)
{
    for (const auto& [day, e] : days) {
        const CivilDate date = persianDate(day);
        ASSERT_EQ(std::tuple(e.year, e.month, e.day), std::tuple(date.year, date.month, date.day)) << day;
    }
    EXPECT_EQ(lastDay, persianJulianDayNumber(1411, 1, 1) - 1);
}

// Every centre has every day and one more, and the view's next-day columns are the following
// day's dawn and sunrise.
TEST_F(IconsInvariants, EveryCentreHasEveryDayPlusOneAndTheFollowingDaysColumns)
{
    const std::string dayCount = std::to_string(days.size());
    EXPECT_EQ(scalar("SELECT COUNT(DISTINCT StateID) FROM tTimes"), "31");
    EXPECT_EQ(scalar("SELECT COUNT(*) FROM (SELECT StateID, COUNT(*) AS n FROM tTimes GROUP BY StateID HAVING n <> "
                     + dayCount + " + 1)"),
              "0");
    EXPECT_EQ(scalar("SELECT COUNT(*) FROM tTimes t LEFT JOIN tEvents e ON t.Date = e.Date WHERE e.Date IS NULL"),
              "31");  // only the extra day has no events row
    EXPECT_EQ(scalar("SELECT COUNT(*) FROM vTimes"), std::to_string(provinceCount * days.size()));
    EXPECT_EQ(scalar("SELECT COUNT(*) FROM (SELECT StateID, Date, LEAD(T1) OVER w AS n1, LEAD(T2) OVER w AS n2 "
                     "FROM tTimes WINDOW w AS (PARTITION BY StateID ORDER BY Date)) x "
                     "JOIN vTimes v ON v.StateID = x.StateID AND v.Date = x.Date "
                     "WHERE v.T7 IS NOT x.n1 OR v.T8 IS NOT x.n2"),
              "0");
}

// Times are written "H:MM", as every reader parses them.
TEST_F(IconsInvariants, TimesAreHoursAndTwoDigitMinutes)
{
    for (const char* column : {"T1", "T2", "T3", "T4", "T5", "T6"})
        EXPECT_EQ(scalar(std::string("SELECT COUNT(*) FROM tTimes WHERE Date < 14000101 AND ") + column
                         + " NOT GLOB '[0-9]:[0-5][0-9]' AND " + column + " NOT GLOB '[12][0-9]:[0-5][0-9]'"),
                  "0")
            << column;
}

}  // namespace
}  // namespace kavenda
