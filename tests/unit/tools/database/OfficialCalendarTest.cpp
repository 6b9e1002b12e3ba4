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

// The events of the shipped database by Julian day number: one row per day from 1 Farvardin
// 1392 in stored order, which the invariant tests check.
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

TEST_F(OfficialCalendar, LunarHolidaysFallOnTheOfficialDaysOfTheTable)
{
    const std::vector<Occasion> lunar = readOccasions(texts::lunarOccasions);
    int checked = 0;
    for (std::size_t i = 0; i + 1 < table.size(); ++i) {
        const long length = table[i + 1].firstDay - table[i].firstDay;
        for (const Occasion& o : lunar) {
            const long day = table[i].firstDay + std::min<long>(o.day, length) - 1;
            if (o.month != table[i].month || !days.count(day) || at(day).year < 1393 || at(day).year > 1405)
                continue;
            const EventDay& e = at(day);
            EXPECT_TRUE(e.has(o.name)) << o.name << " on " << e.year << "/" << e.month << "/" << e.day;
            if (o.holidayIn(e.year)) {
                EXPECT_TRUE(e.holiday) << o.name << " on " << e.year << "/" << e.month << "/" << e.day;
                ++checked;
            }
        }
    }
    EXPECT_GT(checked, 13 * 17);  // about 17 lunar holidays a year for 13 years
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
    int daysOf1392 = 0;
    for (const auto& [day, e] : days) {
        if (e.year != 1392)
            continue;
        ++daysOf1392;
        const auto it = official.find(e.month * 100 + e.day);
        EXPECT_EQ(e.description, it == official.end() ? "" : it->second.first) << e.month << "/" << e.day;
        EXPECT_EQ(e.holiday, it != official.end() && it->second.second) << e.month << "/" << e.day;
    }
    EXPECT_EQ(daysOf1392, 365);
    EXPECT_EQ(holidaysInTheDatabase(1392).size(), 26u);
}

}  // namespace
}  // namespace kavenda
