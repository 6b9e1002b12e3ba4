// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "screens/main/CityPages.h"

#include "calendar/DateTimePersian.h"
#include "desktop/SystemPersianCalendar.h"
#include "reminders/MyNotification.h"
#include "screens/cities/ChosenCities.h"
#include "screens/cities/CitySearch.h"
#include "screens/main/DayPage.h"
#include "tests/support/FixedClock.h"
#include "tests/support/FixtureDatabase.h"
#include "tests/support/RecordingNotificationService.h"
#include "tests/support/ScriptedRandom.h"
#include "tests/support/TehranTime.h"

#include <optional>
#include <tuple>

namespace kavenda {
namespace {

DateTimePersian on(std::string_view key)
{
    static const SystemPersianCalendar calendar;
    return DateTimePersian::initWithPersianDate(key, calendar);
}

class CityPagesTest : public test::WorkingCopy {
protected:
    CityPagesTest() : WorkingCopy({"fixture-data.sql", "main-screen.sql"}) {}

    const RowSet& build(std::string_view dateKey = "920410")
    {
        pages.updateDataSource(on(dateKey));
        return pages.datasource();
    }

    static std::vector<std::string> names(const RowSet& rows)
    {
        std::vector<std::string> result;
        for (const Row& row : rows)
            result.push_back(row.at("Name"));
        return result;
    }

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
    // The city, its name, T1 to T8.
    // clang-format off
    const std::tuple<int, std::string, std::vector<std::string>> cases[] = {
        {64, "ورامین", {"3:46", "5:21", "12:2", "19:20", "19:40", "23:11", "3:47", "5:22"}},  // -5 on تهران
        {65, "کاشان", {"4:8", "5:44", "12:24", "19:38", "19:56", "23:29", "4:9", "5:45"}},    // 4, 3, 2, 1, 0, -1
        {66, "نطنز", {"4:4", "5:41", "12:22", "19:37", "19:56", "23:30", "4:5", "5:42"}},     // no offset row
    };
    // clang-format on
    for (const auto& [city, name, times] : cases) {
        exec("DELETE FROM tSelectedStates");
        choose({32, city});
        const RowSet& rows = build();
        ASSERT_EQ(rows.size(), 2u);
        std::vector<std::string> shown;
        for (int k = 1; k <= 8; ++k)
            shown.push_back(rows[0].at("T" + std::to_string(k)));
        EXPECT_EQ(std::pair(rows[0].at("Name"), shown), std::pair(name, times));
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

Row tehranRow(std::string description = "")
{
    return Row{
        {"Name", "تهران"}, {"T1", "4:53"},  {"T2", "6:20"}, {"T3", "12:05"}, {"T4", "17:49"},
        {"T5", "18:08"},   {"T6", "23:21"}, {"T7", "4:54"}, {"T8", "6:21"},  {"Description", std::move(description)},
        {"StateID", "32"}};
}

TEST(DayPageTest, OccasionShowsTheFirstOfSeveralWithPersianDigits)
{
    const std::vector<std::pair<std::string, std::string>> cases{
        {"", ""},
        {"عید نوروز@آغاز سال نو@روز سوم", "عید نوروز و ..."},
        {"سالروز 3 خرداد@دیگر", "سالروز ٣ خرداد و ..."},
        {"روز 12 فروردین", "روز ١٢ فروردین"},
        {"@", " و ..."},
    };
    DateTimePersian date = on("920101");
    for (const auto& [description, shown] : cases)
        EXPECT_EQ(DayPage(tehranRow(description), date).occasion(), shown) << description;
}

TEST(DayPageTest, NameDateAndTimesInPersianDigitsOrNoTimesWithoutThem)
{
    DateTimePersian date = on("920410");
    const DayPage page(tehranRow(), date);
    EXPECT_EQ(page.name() + " " + page.date(), "تهران ١٠ تیر");
    const std::vector<std::string> expected{"٠٥:٥٣", "٠٧:٢٠", "١٣:٠٥", "١٨:٤٩", "١٩:٠٨", "٠٠:٢١", "٠٥:٥٤", "٠٧:٢١"};
    DateTimePersian mordad = on("920501");
    const DayPage noTimes(Row{{"Name", "مشهد"}, {"Description", ""}}, mordad);
    EXPECT_EQ(noTimes.name() + " " + noTimes.date(), "مشهد ٠١ مرداد");
    for (int k = 1; k <= DayPage::timeCount; ++k) {
        EXPECT_EQ(page.time(k), expected[static_cast<std::size_t>(k - 1)]) << k;
        EXPECT_EQ(noTimes.time(k), "") << k;
    }
}

TEST(DayPageTest, SummerHourFollowsTheDayOfEachTime)
{
    // Day of the year, dawn, the next day's dawn: day 185's next day is past the summer hour.
    const std::tuple<int, std::string, std::string> cases[] = {
        {10, "٠٥:٥٣", "٠٥:٥٤"}, {184, "٠٥:٥٣", "٠٥:٥٤"}, {185, "٠٥:٥٣", "٠٤:٥٤"}, {200, "٠٤:٥٣", "٠٤:٥٤"}};
    for (const auto& [dayOfYear, dawn, nextDawn] : cases) {
        DateTimePersian date = on("920101");
        date.setDayOfYear(dayOfYear);
        const DayPage page(tehranRow(), date);
        EXPECT_EQ(page.time(1), dawn) << dayOfYear;
        EXPECT_EQ(page.time(7), nextDawn) << dayOfYear;
        EXPECT_EQ(date.dayOfYear(), dayOfYear);  // shared with the other pages: left as it was
    }
}

// A working copy whose columns were renamed by hand or by another program: every screen's
// data layer and the scheduler read what they can and never throw, and every chosen city
// keeps its page (a renamed tStates.Name used to abort the program as the main screen was built).
class DamagedSchema : public test::WorkingCopy,
                      public ::testing::WithParamInterface<std::pair<std::string, std::string>> {
protected:
    DamagedSchema() : WorkingCopy({"fixture-data.sql", "offset-city.sql"})
    {
        choose({32, 63});
        setSettings("Item0 = 1, Item3 = 1, Item7 = '8:30'");
        exec("ALTER TABLE " + GetParam().first + " RENAME COLUMN " + GetParam().second + " TO Renamed");
    }
};

TEST_P(DamagedSchema, NoScreenAndNoRebuildThrows)
{
    FixedClock clock{test::tehran(2013, 5, 22, 0, 1)};
    SystemPersianCalendar calendar;
    CityPages pages(db);
    EXPECT_NO_THROW(pages.updateDataSource(DateTimePersian::init(clock, calendar)));
    if (GetParam().second == "Name") {
        EXPECT_EQ(pages.datasource().size(), 2u);
    }
    for (const Row& page : pages.datasource())
        EXPECT_EQ(page.count("Name"), 1u);

    test::RecordingNotificationService notifications;
    test::ScriptedRandom random{{3, 7, 1}};
    MyNotification scheduler(db, clock, calendar, notifications, random, log);
    EXPECT_NO_THROW(scheduler.update());

    ChosenCities chosen(db, [] {});
    EXPECT_NO_THROW(chosen.updateDataSource());
    CitySearch search(db);
    EXPECT_NO_THROW(search.updateDataSource("ت"));
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(RenamedColumns, DamagedSchema,
                         ::testing::ValuesIn(std::vector<std::pair<std::string, std::string>>{
                             {"tStates", "Name"}, {"tStates", "IsCenter"}, {"tStates", "StateID"},
                             {"tStates", "ParentID"}, {"tSelectedStates", "Ordering"}, {"tTimes", "T1"},
                             {"tEvents", "Description"}, {"tSetting", "Item7"}}),
                         [](const auto& named) { return named.param.first + "_" + named.param.second; });
// clang-format on

}  // namespace
}  // namespace kavenda
