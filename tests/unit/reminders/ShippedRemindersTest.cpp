// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

// A rebuild on the generated database for 1 Azar 1405 (22 November 2026), with every reminder
// on: the times announced are the stored ones, as no summer hour is kept any more.
#include "reminders/MyNotification.h"

#include "data/Statements.h"
#include "desktop/IcuPersianCalendar.h"
#include "tests/support/FixedClock.h"
#include "tests/support/RecordingNotificationService.h"
#include "tests/support/ScriptedRandom.h"
#include "tests/support/TehranTime.h"
#include "tests/unit/tools/database/ShippedIcons.h"
#include "text/Format.h"

namespace kavenda {
namespace {

using test::tehran;

constexpr int tehranCentre = 39;

class ShippedReminders : public test::ShippedIcons {
protected:
    ShippedReminders()
    {
        db.ExecuteNonQuery("UPDATE tSetting SET Item0 = 1, Item1 = 1, Item2 = 1, Item3 = 10, Item4 = 20, "
                           "Item5 = 15, Item7 = '08:00'");
    }

    std::vector<NotificationRecord> updateFor(int city)
    {
        db.ExecuteNonQuery(formatSql(sql::insertChosenCity, {city, 1}));
        MyNotification(db, clock, calendar, notifications, random, log).update();
        return notifications.records;
    }

    // The wall-clock moment of a stored time of a day of Azar 1405, shifted by some minutes.
    Instant stored(int day, const std::string& column, int shift = 0)
    {
        const std::string key = format("10509%02d", {day});
        const std::string time = scalar("SELECT " + column + " FROM tTimes WHERE StateID = 39 AND Date = " + key);
        const std::size_t colon = time.find(':');
        return tehran(2026, 11, 21 + day, std::stoi(time.substr(0, colon)), std::stoi(time.substr(colon + 1)))
            + std::chrono::minutes(shift);
    }

    FixedClock clock{tehran(2026, 11, 22, 0, 1)};
    IcuPersianCalendar calendar;
    test::RecordingNotificationService notifications;
    test::ScriptedRandom random{{0}};
};

// 1408 is leap and 1407 is not: on 1 July 2029, 11 Tir 1408, the rebuild starts from that
// day's row and announces five days, none of them one day off.
TEST_F(ShippedReminders, AfterTheOfficialLeapYearTheDaysStillMatchTheirTimes)
{
    clock.set(tehran(2029, 7, 1, 0, 1));
    db.ExecuteNonQuery("UPDATE tSetting SET Item3 = 0, Item4 = 0, Item5 = 0, Item7 = '0'");
    const auto records = updateFor(tehranCentre);
    ASSERT_EQ(records.size(), 15u);
    for (int day = 0; day < 5; ++day) {
        const std::string dawn =
            scalar(format("SELECT T1 FROM tTimes WHERE StateID = 39 AND Date = 10804%02d", {11 + day}));
        const std::size_t colon = dawn.find(':');
        EXPECT_EQ(records[static_cast<std::size_t>(3 * day)].fireDate,
                  tehran(2029, 7, 1 + day, std::stoi(dawn.substr(0, colon)), std::stoi(dawn.substr(colon + 1))))
            << day;
    }
}

}  // namespace
}  // namespace kavenda
