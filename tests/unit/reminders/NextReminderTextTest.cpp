// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "reminders/NextReminderText.h"

#include "desktop/SystemPersianCalendar.h"
#include "tests/support/TehranTime.h"

#include <gtest/gtest.h>

namespace kavenda {
namespace {

using test::tehran;

NotificationRecord reminder(Instant at, const std::string& body)
{
    return {at, "Asia/Tehran", body, "Ok", "0.wav", {}};
}

const std::string evening = "اذان مغرب به افق تهران";

TEST(NextReminderText, NamesTheCallItsTimeAndTheTimeLeft)
{
    struct Case {
        Instant now;
        std::string left;
    };
    const Instant at = tehran(2026, 11, 22, 17, 13);
    // clang-format off
    const Case cases[] = {
        {tehran(2026, 11, 22, 14, 58), "٢ ساعت و ١٥ دقیقه"},
        // A part of a minute counts as a whole one.
        {tehran(2026, 11, 22, 14, 58, 30), "٢ ساعت و ١٥ دقیقه"},
        {tehran(2026, 11, 22, 15, 13), "٢ ساعت"},
        {tehran(2026, 11, 22, 17, 0), "١٣ دقیقه"},
        {tehran(2026, 11, 22, 17, 12, 59), "١ دقیقه"},
        {tehran(2026, 11, 20, 16, 3), "٢ روز و ١ ساعت و ١٠ دقیقه"},
        {at, "کمتر از یک دقیقه"},
    };
    // clang-format on
    SystemPersianCalendar calendar;
    for (const Case& c : cases)
        EXPECT_EQ(nextReminderText({reminder(at, evening)}, c.now, calendar),
                  "اذان مغرب به افق تهران، ١٧:١٣ (" + c.left + " دیگر)");
}

TEST(NextReminderText, TakesTheEarliestOnOneLine)
{
    SystemPersianCalendar calendar;
    const Instant now = tehran(2026, 11, 22, 6, 0);
    const std::vector<NotificationRecord> pending = {
        reminder(tehran(2026, 11, 22, 11, 50), "اذان ظهر به افق تهران"),
        reminder(tehran(2026, 11, 22, 8, 5), "وقایع امروز : \nروز ملی"),
        reminder(tehran(2026, 11, 23, 5, 0), "اذان صبح به افق تهران"),
    };
    EXPECT_EQ(nextReminderText(pending, now, calendar), "وقایع امروز :  روز ملی، ٠٨:٠٥ (٢ ساعت و ٥ دقیقه دیگر)");
    EXPECT_EQ(nextReminderText({}, now, calendar), "");
}

}  // namespace
}  // namespace kavenda
