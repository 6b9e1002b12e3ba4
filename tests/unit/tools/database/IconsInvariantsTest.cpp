// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "data/IntValue.h"
#include "desktop/SystemPersianCalendar.h"
#include "tests/support/FixtureDatabase.h"
#include "text/Utility.h"

namespace kavenda {
namespace {

class IconsInvariants : public test::WorkingCopy {
protected:
    IconsInvariants() : WorkingCopy({}) {}
};

constexpr int provinceCount = 31;

TEST_F(IconsInvariants, PlacesAreTheProvincesAndTheirCentres)
{
    ASSERT_TRUE(db.isExist());
    EXPECT_EQ(scalar("SELECT COUNT(*) FROM tStates WHERE ParentID IS NULL AND IsCenter = 0"), "31");
    EXPECT_EQ(scalar("SELECT COUNT(*) FROM tStates WHERE IsCenter = 1"), "31");
    EXPECT_EQ(scalar("SELECT MIN(StateID) || '-' || MAX(StateID) FROM tStates"), "1-62");
    // Every province has exactly one centre among its children, and every city a province.
    EXPECT_EQ(scalar("SELECT COUNT(*) FROM tStates p WHERE p.ParentID IS NULL AND "
                     "(SELECT COUNT(*) FROM tStates c WHERE c.ParentID = p.StateID AND c.IsCenter = 1) <> 1"),
              "0");
    EXPECT_EQ(scalar("SELECT COUNT(*) FROM tStates c LEFT JOIN tStates p ON c.ParentID = p.StateID "
                     "WHERE c.ParentID IS NOT NULL AND (p.StateID IS NULL OR p.ParentID IS NOT NULL)"),
              "0");
    // Names use the Persian letter forms that typed searches are normalised to.
    for (const Row& row : db.Execute("SELECT Name FROM tStates"))
        EXPECT_EQ(Utility::GetProperString(row.at("Name")), row.at("Name"));
}

TEST_F(IconsInvariants, OneEventsRowForEveryDayInDateOrder)
{
    const SystemPersianCalendar calendar;
    const RowSet days = db.Execute("SELECT Date FROM tEvents");  // stored order, as the calendar reads it
    ASSERT_FALSE(days.empty());
    EXPECT_EQ(days.front().at("Date"), "920101");
    EXPECT_EQ(days.back().at("Date"), "1101229");
    int expectedDays = 0;
    for (int year = 1392; year <= 1410; ++year)
        expectedDays += calendar.dayOfYear(year, 12, 30) == 366 ? 366 : 365;  // 30 Esfand rolls over otherwise
    EXPECT_EQ(static_cast<int>(days.size()), expectedDays);

    for (std::size_t i = 1; i < days.size(); ++i) {
        const int previous = intValue(days[i - 1].at("Date"));
        const int key = intValue(days[i].at("Date"));
        const int year = key / 10000, month = key / 100 % 100, day = key % 100;
        const int pYear = previous / 10000, pMonth = previous / 100 % 100, pDay = previous % 100;
        const int ordinal = calendar.dayOfYear(year + 1300, month, day);
        const bool nextInYear = year == pYear && ordinal == calendar.dayOfYear(pYear + 1300, pMonth, pDay) + 1;
        const bool newYear = year == pYear + 1 && month == 1 && day == 1 && pMonth == 12 && pDay >= 29;
        ASSERT_TRUE(nextInYear || newYear) << previous << " -> " << key;
    }
}

TEST_F(IconsInvariants, EveryCentreHasEveryDayPlusOne)
{
    const std::string days = scalar("SELECT COUNT(*) FROM tEvents");
    EXPECT_EQ(scalar("SELECT COUNT(DISTINCT StateID) FROM tTimes"), "31");
    EXPECT_EQ(scalar("SELECT COUNT(*) FROM (SELECT StateID, COUNT(*) AS n FROM tTimes GROUP BY StateID "
                     "HAVING n <> "
                     + days + " + 1)"),
              "0");
    EXPECT_EQ(scalar("SELECT COUNT(*) FROM tTimes t LEFT JOIN tEvents e ON t.Date = e.Date "
                     "WHERE e.Date IS NULL"),
              "31");  // only the extra day has no events row
    EXPECT_EQ(scalar("SELECT COUNT(*) FROM vTimes"), std::to_string(provinceCount * intValue(days)));
}

TEST_F(IconsInvariants, NextDayColumnsAreTheFollowingDaysDawnAndSunrise)
{
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
