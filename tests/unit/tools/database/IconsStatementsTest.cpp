// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "data/IntValue.h"
#include "data/Statements.h"
#include "tests/unit/tools/database/ShippedIcons.h"
#include "text/Format.h"
#include "text/Utility.h"

namespace kavenda {
namespace {

using IconsStatements = test::ShippedIcons;

constexpr int tehranCentre = 39;
constexpr const char* today = "1050901";  // 22 November 2026

TEST_F(IconsStatements, DayQueryGivesOneRowWithEightTimes)
{
    ASSERT_TRUE(db.ExecuteNonQuery(formatSql(sql::insertChosenCity, {tehranCentre, 1})));
    for (const char* key : {"920101", "921229", today, "1101229"}) {
        const RowSet rows = db.Execute(formatSql(sql::dayTimes, {key, tehranCentre}));
        ASSERT_EQ(rows.size(), 1u) << key;
        EXPECT_EQ(rows[0].at("Name"), "تهران");
        for (const char* column : {"T1", "T2", "T3", "T4", "T5", "T6", "T7", "T8"})
            EXPECT_NE(rows[0].at(column).find(':'), std::string::npos) << key << " " << column;
    }
    // Last day of 1392 into the first of 1393: tomorrow's dawn comes from the next year.
    const Row lastDay = db.Execute(formatSql(sql::dayTimes, {"921229", tehranCentre})).at(0);
    EXPECT_EQ(lastDay.at("T7"), scalar("SELECT T1 FROM tTimes WHERE StateID = 39 AND Date = 930101"));
    EXPECT_EQ(lastDay.at("Description"), "روز ملی شدن صنعت نفت ایران");
}

TEST_F(IconsStatements, MonthQueriesGiveEveryDayInOrder)
{
    const RowSet farvardin = db.Execute(formatSql(sql::monthEvents, {format(sql::monthPattern, {92, 1})}));
    ASSERT_EQ(farvardin.size(), 31u);
    EXPECT_EQ(farvardin[0].at("Description"), "آغاز نوروز");
    EXPECT_EQ(farvardin[12].at("Description"), "روز طبیعت");
    EXPECT_EQ(farvardin[12].at("IsHoliday"), "1");
    EXPECT_EQ(farvardin[4].at("Description"), "");
    EXPECT_EQ(farvardin[24].at("Description"), "شهادت حضرت فاطمه زهرا (س)@روز بزرگداشت عطار نیشابوری");

    const RowSet esfand = db.Execute(formatSql(sql::monthEvents, {format(sql::monthPattern, {92, 12})}));
    ASSERT_EQ(esfand.size(), 29u);
    EXPECT_EQ(esfand[28].at("Description"), "روز ملی شدن صنعت نفت ایران");
    EXPECT_EQ(esfand[28].at("IsHoliday"), "1");
}

TEST_F(IconsStatements, LaterYearsKeepTheirSolarAndLunarOccasions)
{
    EXPECT_EQ(scalar("SELECT IsHoliday FROM tEvents WHERE Date = 1051122"), "1");  // 22 Bahman
    EXPECT_NE(scalar("SELECT Description FROM tEvents WHERE Date = 1051122").find("پیروزی انقلاب"), std::string::npos);
    // Each lunar year has exactly one Ashura holiday, some eleven days earlier every solar year.
    EXPECT_EQ(scalar("SELECT COUNT(*) FROM tEvents WHERE Description LIKE '%عاشورای حسینی%' AND IsHoliday = 1"), "19");
}

TEST_F(IconsStatements, ReminderQueryFromToday)
{
    const RowSet rows = db.Execute(formatSql(sql::reminderTimes, {today, tehranCentre, tehranCentre}));
    ASSERT_EQ(rows.size(), 5u);
    EXPECT_EQ(rows[0].at("Date"), today);
    EXPECT_EQ(rows[4].at("Date"), "1050905");
    EXPECT_EQ(rows[0].at("0"), rows[0].at("4"));
}

TEST_F(IconsStatements, SearchesNameCitiesWithTheirProvince)
{
    const RowSet cities = db.Execute(formatSql(sql::searchUnchosenCities, {Utility::GetProperString("كرمان")}));
    ASSERT_EQ(cities.size(), 2u);  // کرمان and کرمانشاه
    EXPECT_EQ(cities[0].at("StateName"), "کرمان (کرمان)");
    const RowSet tabriz = db.Execute(formatSql(sql::searchUnchosenCities, {"تبریز"}));
    ASSERT_EQ(tabriz.size(), 1u);
    EXPECT_EQ(tabriz[0].at("StateName"), "تبریز (آذربایجان شرقی)");
    EXPECT_EQ(db.Execute(formatSql(sql::searchProvinces, {"خراسان"})).size(), 3u);
}

TEST_F(IconsStatements, AUserCityTakesTheNextIdentifierAndStaysOutOfTheDays)
{
    constexpr int tehranProvince = 8;
    const std::string viewRows = scalar("SELECT COUNT(*) FROM vTimes");
    ASSERT_TRUE(db.ExecuteNonQuery(formatSql(sql::insertCity, {"ورامین", tehranProvince})));
    const int city = intValue(db.ExecuteScaler(sql::highestPlaceId).value_or("0"));
    EXPECT_EQ(city, 63);
    ASSERT_TRUE(
        db.ExecuteNonQuery(formatSql(sql::insertOffsetRow, {city, "14000101", "-2", "-2", "-1", "0", "0", "-1"})));

    EXPECT_EQ(db.ExecuteScaler(formatSql(sql::provinceCentreOfCity, {city})), "39");
    const RowSet offsets = db.Execute(formatSql(sql::cityOffsets, {city}));
    ASSERT_EQ(offsets.size(), 1u);
    EXPECT_EQ(offsets[0].at("1"), "-2");
    EXPECT_EQ(offsets[0].at("8"), "-2");
    // The offset row is above every date key, so it never counts as anybody's next day.
    EXPECT_EQ(scalar("SELECT COUNT(*) FROM vTimes"), viewRows);
    // Keys compare as numbers: as texts, '14000101' would sort below '920101'.
    EXPECT_EQ(scalar("SELECT COUNT(*) FROM tTimes WHERE StateID = 63 AND Date >= '920101'"), "1");
    EXPECT_EQ(scalar("SELECT COUNT(*) FROM vTimes WHERE StateID = 63"), "0");
}

}  // namespace
}  // namespace kavenda
