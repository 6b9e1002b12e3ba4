// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "screens/main/CityPages.h"

#include "calendar/DateTimePersian.h"
#include "data/MyDB.h"
#include "data/Statements.h"
#include "desktop/IcuPersianCalendar.h"
#include "tests/support/FixedPaths.h"
#include "tests/support/FixtureDatabase.h"
#include "tests/support/RecordingLog.h"
#include "tests/support/TempFolder.h"
#include "text/Format.h"

#include <gtest/gtest.h>

#include <optional>

namespace kavenda {
namespace {

class CityPagesTest : public ::testing::Test {
protected:
    CityPagesTest() : paths(temp.path() / "documents", temp.path() / "resources")
    {
        test::buildFixtureDatabase(paths.resourceFolder(), {"fixture-data.sql", "main-screen.sql"});
        db.emplace("Icons", paths, log);
        pages.emplace(*db);
    }

    void choose(std::initializer_list<int> stateIds)
    {
        int ordering = 0;
        for (int id : stateIds)
            ASSERT_TRUE(db->ExecuteNonQuery(formatSql(sql::insertChosenCity, {id, ordering++})));
    }

    const RowSet& build(std::string_view dateKey = "920410")
    {
        pages->updateDataSource(DateTimePersian::initWithPersianDate(dateKey, calendar));
        return pages->datasource();
    }

    static std::vector<std::string> names(const RowSet& rows)
    {
        std::vector<std::string> result;
        for (const Row& row : rows)
            result.push_back(row.at("Name"));
        return result;
    }

    test::TempFolder temp;
    FixedPaths paths;
    test::RecordingLog log;
    IcuPersianCalendar calendar;
    std::optional<MyDB> db;
    std::optional<CityPages> pages;
};

TEST_F(CityPagesTest, PagesRunFromTheLastChosenCityToTheFirst)
{
    choose({32, 33, 34});
    const RowSet& rows = build();
    EXPECT_EQ(names(rows), (std::vector<std::string>{"مشهد", "اصفهان", "تهران"}));
    EXPECT_EQ(rows[2].at("T1"), "3:51");
    EXPECT_EQ(rows[2].at("T7"), "3:52");  // the next day's dawn call
    EXPECT_EQ(rows[2].at("Description"), "روز صنعت و معدن@روز بزرگداشت صائب تبریزی@روز 7 تیر");
    EXPECT_EQ(rows[0].at("Description"), rows[2].at("Description"));
}

TEST_F(CityPagesTest, NoChosenCityLeavesNoRow)
{
    choose({32});
    build();
    ASSERT_TRUE(db->ExecuteNonQuery(formatSql(sql::deleteChosenCity, {32})));
    EXPECT_TRUE(build().empty());
}

TEST_F(CityPagesTest, ACityOfAChosenCentreShowsTheCentreShiftedByItsOffsetsUnderItsOwnName)
{
    choose({32, 64});
    const RowSet& rows = build();
    ASSERT_EQ(rows.size(), 2u);
    const Row& varamin = rows[0];
    EXPECT_EQ(varamin.at("Name"), "ورامین");
    const std::vector<std::pair<std::string, std::string>> expected{{"T1", "3:46"},  {"T2", "5:21"},  {"T3", "12:2"},
                                                                    {"T4", "19:20"}, {"T5", "19:40"}, {"T6", "23:11"},
                                                                    {"T7", "3:47"},  {"T8", "5:22"}};
    for (const auto& [key, time] : expected)
        EXPECT_EQ(varamin.at(key), time) << key;
    EXPECT_EQ(rows[1].at("T1"), "3:51");  // the centre's own page is untouched
}

TEST_F(CityPagesTest, NextDayTimesTakeTheOffsetsOfDawnAndSunrise)
{
    choose({65});  // offsets 4, 3, 2, 1, 0, -1; its centre اصفهان is not chosen
    const RowSet& rows = build();
    ASSERT_EQ(rows.size(), 1u);
    EXPECT_EQ(rows[0].at("Name"), "کاشان");
    EXPECT_EQ(rows[0].at("T1"), "4:8");
    EXPECT_EQ(rows[0].at("T6"), "23:29");
    EXPECT_EQ(rows[0].at("T7"), "4:9");  // 4:05 + the dawn offset
    EXPECT_EQ(rows[0].at("T8"), "5:45");  // 5:42 + the sunrise offset
    EXPECT_EQ(rows[0].at("Description"), "روز صنعت و معدن@روز بزرگداشت صائب تبریزی@روز 7 تیر");
}

TEST_F(CityPagesTest, ACityWithoutAnOffsetRowShowsItsCentresTimes)
{
    choose({66});
    const RowSet& rows = build();
    ASSERT_EQ(rows.size(), 1u);
    EXPECT_EQ(rows[0].at("Name"), "نطنز");
    EXPECT_EQ(rows[0].at("T1"), "4:4");
    EXPECT_EQ(rows[0].at("T8"), "5:42");
}

TEST_F(CityPagesTest, ADayWithoutDataKeepsEveryCityAPageWithoutTimes)
{
    choose({32, 64, 34});
    const RowSet& rows = build("920501");
    EXPECT_EQ(names(rows), (std::vector<std::string>{"مشهد", "ورامین", "تهران"}));
    for (const Row& row : rows) {
        EXPECT_EQ(row.count("T1"), 0u);
        EXPECT_EQ(row.at("Description"), "");
    }
}

TEST_F(CityPagesTest, ARebuildReplacesTheRowsForTheNewDate)
{
    choose({32});
    build();
    const RowSet& rows = build("920101");
    ASSERT_EQ(rows.size(), 1u);
    EXPECT_EQ(rows[0].at("T1"), "4:35");
}

TEST(CityPagesArithmetic, TheLastPageIsWhereTheScreenOpens)
{
    EXPECT_EQ(CityPages::lastPageOffset(3, 320), 640);
    EXPECT_EQ(CityPages::lastPageOffset(1, 320), 0);
    EXPECT_EQ(CityPages::lastPageOffset(0, 320), 0);
}

TEST(CityPagesArithmetic, OnlyAWholeOffsetOnAPageBoundarySettlesAPage)
{
    const std::vector<std::pair<double, std::optional<int>>> cases{{0, 0},
                                                                   {320, 1},
                                                                   {640, 2},
                                                                   {639.5, std::nullopt},
                                                                   {650, std::nullopt},
                                                                   {320.25, std::nullopt},
                                                                   {1, std::nullopt},
                                                                   {-0.5, std::nullopt}};
    for (const auto& [offset, page] : cases)
        EXPECT_EQ(CityPages::settledPage(offset), page) << offset;
}

}  // namespace
}  // namespace kavenda
