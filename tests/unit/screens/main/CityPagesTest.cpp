// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "screens/main/CityPages.h"

#include "calendar/DateTimePersian.h"
#include "data/Statements.h"
#include "desktop/SystemPersianCalendar.h"
#include "tests/support/FixtureDatabase.h"
#include "text/Format.h"

#include <optional>

namespace kavenda {
namespace {

class CityPagesTest : public test::WorkingCopy {
protected:
    CityPagesTest() : WorkingCopy({"fixture-data.sql", "main-screen.sql"}) {}

    void choose(std::initializer_list<int> stateIds)
    {
        int ordering = 0;
        for (int id : stateIds)
            exec(formatSql(sql::insertChosenCity, {id, ordering++}));
    }

    const RowSet& build(std::string_view dateKey = "920410")
    {
        pages.updateDataSource(DateTimePersian::initWithPersianDate(dateKey, calendar));
        return pages.datasource();
    }

    static std::vector<std::string> names(const RowSet& rows)
    {
        std::vector<std::string> result;
        for (const Row& row : rows)
            result.push_back(row.at("Name"));
        return result;
    }

    SystemPersianCalendar calendar;
    CityPages pages{db};
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

    // A rebuild replaces the rows for the new date.
    EXPECT_EQ(build("920101")[2].at("T1"), "4:35");
}

// A city shows its centre's times shifted by its offsets, under its own name, whether or not
// its centre is chosen; without an offset row it shows its centre's times.
TEST_F(CityPagesTest, ACityShowsItsCentresTimesShiftedByItsOffsets)
{
    struct Case {
        int city;
        const char* name;
        std::vector<std::string> times;  // T1 to T8
    };
    // clang-format off
    const Case cases[] = {
        {64, "ورامین", {"3:46", "5:21", "12:2", "19:20", "19:40", "23:11", "3:47", "5:22"}},  // -5 on تهران
        {65, "کاشان", {"4:8", "5:44", "12:24", "19:38", "19:56", "23:29", "4:9", "5:45"}},    // 4, 3, 2, 1, 0, -1
        {66, "نطنز", {"4:4", "5:41", "12:22", "19:37", "19:56", "23:30", "4:5", "5:42"}},     // no offset row
    };
    // clang-format on
    for (const Case& c : cases) {
        exec("DELETE FROM tSelectedStates");
        choose({32, c.city});
        const RowSet& rows = build();
        ASSERT_EQ(rows.size(), 2u);
        EXPECT_EQ(rows[0].at("Name"), c.name);
        for (std::size_t k = 0; k < 8; ++k)
            EXPECT_EQ(rows[0].at("T" + std::to_string(k + 1)), c.times[k]) << c.name << " T" << k + 1;
        EXPECT_EQ(rows[0].at("Description"), rows[1].at("Description"));
        EXPECT_EQ(rows[1].at("T1"), "3:51") << "the centre's own page is untouched";
    }
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
    exec("DELETE FROM tSelectedStates");
    EXPECT_TRUE(build().empty()) << "no chosen city leaves no row";
}

TEST(CityPagesArithmetic, OnlyAWholeOffsetOnAPageBoundarySettlesAPage)
{
    EXPECT_EQ(CityPages::lastPageOffset(3, 320), 640);
    EXPECT_EQ(CityPages::lastPageOffset(0, 320), 0);
    const std::pair<double, std::optional<int>> cases[] = {
        {0, 0}, {640, 2}, {639.5, std::nullopt}, {650, std::nullopt}, {320.25, std::nullopt}, {-0.5, std::nullopt}};
    for (const auto& [offset, page] : cases)
        EXPECT_EQ(CityPages::settledPage(offset), page) << offset;
}

}  // namespace
}  // namespace kavenda
