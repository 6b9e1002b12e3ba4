// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

// The top-up of a working copy: years computed on the spot are the shipped years to the byte,
// only what is missing is added, and only as far as the days ahead ask.
#include "data/DataHorizon.h"
#include "data/Statements.h"
#include "desktop/SystemPersianCalendar.h"
#include "tests/support/FixtureDatabase.h"
#include "text/Format.h"

namespace kavenda {
namespace {

constexpr int tehranCentre = 39;

// Every row of the days from `from` to `to`, each value with its storage class, in stored order.
std::string rowsAsText(MyDB& db, int from, int to)
{
    const std::string range = " WHERE Date BETWEEN " + std::to_string(from) + " AND " + std::to_string(to);
    std::string text;
    for (const Row& row : db.Execute("SELECT quote(StateID) || quote(Date) || quote(T1) || quote(T2) || quote(T3) || "
                                     "quote(T4) || quote(T5) || quote(T6) AS r FROM tTimes"
                                     + range))
        text += row.at("r") + "\n";
    for (const Row& row :
         db.Execute("SELECT quote(Date) || quote(Description) || quote(IsHoliday) AS r FROM tEvents" + range))
        text += row.at("r") + "\n";
    return text;
}

class DataHorizonTest : public test::WorkingCopy {
protected:
    DataHorizonTest() : WorkingCopy({}) {}

    DataHorizon horizon{db.dbPath()};
};

TEST_F(DataHorizonTest, ComputedYearsAreTheShippedYearsToTheByte)
{
    exec("DELETE FROM tTimes WHERE Date BETWEEN 1050101 AND 1101230");
    exec("DELETE FROM tEvents WHERE Date BETWEEN 1050101 AND 1101230");
    ASSERT_EQ(scalar("SELECT MAX(Date) FROM tEvents"), "1041229");

    // On 1 Shahrivar 1409 the years to 1409 leave fewer than 400 days ahead; 1410 makes them enough.
    EXPECT_EQ(horizon.keepAhead(1090601), (std::vector<int>{1405, 1406, 1407, 1408, 1409, 1410}));

    test::TempFolder elsewhere;
    FixedPaths shippedPaths(elsewhere.path(), KAVENDA_RESOURCE_DIR);
    MyDB shipped("Icons", shippedPaths, log);
    const std::string computed = rowsAsText(db, 920101, 1110101);
    const std::string expected = rowsAsText(shipped, 920101, 1110101);
    EXPECT_GT(expected.size(), 10'000'000u);
    EXPECT_EQ(computed.size(), expected.size());
    EXPECT_TRUE(computed == expected);  // not printed: some megabytes
    EXPECT_EQ(scalar("SELECT COUNT(*) FROM tTimes"), shipped.ExecuteScaler("SELECT COUNT(*) FROM tTimes"));
    EXPECT_EQ(scalar("SELECT COUNT(*) FROM tEvents"), shipped.ExecuteScaler("SELECT COUNT(*) FROM tEvents"));
}

TEST_F(DataHorizonTest, AddsOnlyWhatIsMissingAndOnlyAsFarAsAsked)
{
    // What a person has made of the copy: a chosen centre, a city of their own, their settings.
    choose({tehranCentre});
    exec(formatSql(sql::insertCity, {"ورامین", 8}));
    exec(formatSql(sql::insertOffsetRow, {63, "14000101", "-2", "-2", "-1", "0", "0", "-1"}));
    setSettings("Item3 = 10, Item7 = '08:00'");
    const auto own = [this] {
        return rowsText({"SELECT * FROM tSelectedStates", "SELECT * FROM tSetting", "SELECT * FROM tStates",
                         "SELECT * FROM tTimes WHERE StateID = 63", "SELECT * FROM tTimes WHERE Date = 1110101"});
    };
    const std::string before = own();
    const std::string shippedDays = rowsAsText(db, 920101, 1101230);

    // 1 Shahrivar 1410: some 210 days are held, 1411 brings them past 400.
    EXPECT_EQ(horizon.keepAhead(1100601), std::vector<int>{1411});
    EXPECT_EQ(horizon.keepAhead(1100601), std::vector<int>{});
    EXPECT_EQ(horizon.holdThrough(1412), std::vector<int>{1412});
    EXPECT_EQ(horizon.holdThrough(1400), std::vector<int>{});
    EXPECT_EQ(own(), before);
    EXPECT_TRUE(rowsAsText(db, 920101, 1101230) == shippedDays);

    // Both years whole: one events row a day in date order, every centre every day and one more.
    const SystemPersianCalendar calendar;
    const int days =
        (calendar.dayOfYear(1411, 12, 30) == 366 ? 366 : 365) + (calendar.dayOfYear(1412, 12, 30) == 366 ? 366 : 365);
    EXPECT_EQ(scalar("SELECT COUNT(*) FROM tEvents WHERE Date > 1110000"), std::to_string(days));
    EXPECT_EQ(scalar("SELECT COUNT(*) FROM tTimes WHERE Date > 1110000 AND Date < 14000101"),
              std::to_string(31 * (days + 1)));
    EXPECT_EQ(scalar("SELECT COUNT(*) FROM (SELECT Date, LAG(Date) OVER (ORDER BY rowid) AS p FROM tEvents) "
                     "WHERE p IS NOT NULL AND p >= Date"),
              "0");
    // The last shipped day's next-day columns now come from the first computed day.
    const RowSet lastShipped = db.Execute(formatSql(sql::dayTimes, {"1101229", tehranCentre}));
    ASSERT_EQ(lastShipped.size(), 1u);
    EXPECT_EQ(lastShipped[0].at("T7"), scalar("SELECT T1 FROM tTimes WHERE StateID = 39 AND Date = 1110101"));
    const RowSet nowruz = db.Execute(formatSql(sql::monthEvents, {format(sql::monthPattern, {111, 1})}));
    ASSERT_EQ(nowruz.size(), 31u);
    EXPECT_EQ(nowruz[0].at("Description"), "آغاز نوروز");
    EXPECT_EQ(nowruz[0].at("IsHoliday"), "1");
}

}  // namespace
}  // namespace kavenda
