// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "screens/main/DayPage.h"

#include "calendar/DateTimePersian.h"
#include "desktop/SystemPersianCalendar.h"

#include <gtest/gtest.h>

namespace kavenda {
namespace {

Row tehranRow(std::string description = "")
{
    return Row{
        {"Name", "تهران"}, {"T1", "4:53"},  {"T2", "6:20"}, {"T3", "12:05"}, {"T4", "17:49"},
        {"T5", "18:08"},   {"T6", "23:21"}, {"T7", "4:54"}, {"T8", "6:21"},  {"Description", std::move(description)},
        {"StateID", "32"}};
}

class DayPageTest : public ::testing::Test {
protected:
    DateTimePersian on(std::string_view key) const { return DateTimePersian::initWithPersianDate(key, calendar); }
    SystemPersianCalendar calendar;
};

TEST_F(DayPageTest, OccasionShowsTheFirstOfSeveralWithPersianDigits)
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

TEST_F(DayPageTest, NameDateAndTimesInPersianDigits)
{
    DateTimePersian date = on("920410");
    const DayPage page(tehranRow(), date);
    EXPECT_EQ(page.name(), "تهران");
    EXPECT_EQ(page.date(), "١٠ تیر");
    const std::vector<std::string> expected{"٠٥:٥٣", "٠٧:٢٠", "١٣:٠٥", "١٨:٤٩", "١٩:٠٨", "٠٠:٢١", "٠٥:٥٤", "٠٧:٢١"};
    for (int k = 1; k <= DayPage::timeCount; ++k)
        EXPECT_EQ(page.time(k), expected[static_cast<std::size_t>(k - 1)]) << k;
}

TEST_F(DayPageTest, SummerHourFollowsTheDayOfEachTime)
{
    struct Case {
        int dayOfYear;
        std::string dawn;
        std::string nextDawn;
    };
    const std::vector<Case> cases{
        {10, "٠٥:٥٣", "٠٥:٥٤"},
        {184, "٠٥:٥٣", "٠٥:٥٤"},
        {185, "٠٥:٥٣", "٠٤:٥٤"},  // the next day is past the summer hour
        {200, "٠٤:٥٣", "٠٤:٥٤"},
    };
    for (const Case& c : cases) {
        DateTimePersian date = on("920101");
        date.setDayOfYear(c.dayOfYear);
        const DayPage page(tehranRow(), date);
        EXPECT_EQ(page.time(1), c.dawn) << c.dayOfYear;
        EXPECT_EQ(page.time(7), c.nextDawn) << c.dayOfYear;
        EXPECT_EQ(date.dayOfYear(), c.dayOfYear);  // shared with the other pages: left as it was
    }
}

TEST_F(DayPageTest, ARowWithoutTimesShowsNameAndDateOnly)
{
    DateTimePersian date = on("920501");
    const DayPage page(Row{{"Name", "مشهد"}, {"Description", ""}}, date);
    EXPECT_EQ(page.name(), "مشهد");
    EXPECT_EQ(page.date(), "٠١ مرداد");
    for (int k = 1; k <= DayPage::timeCount; ++k)
        EXPECT_EQ(page.time(k), "") << k;
}

}  // namespace
}  // namespace kavenda
