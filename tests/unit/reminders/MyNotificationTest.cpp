// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "reminders/MyNotification.h"

#include "data/MyDB.h"
#include "desktop/SystemPersianCalendar.h"
#include "tests/support/FixedClock.h"
#include "tests/support/FixedPaths.h"
#include "tests/support/FixtureDatabase.h"
#include "tests/support/RecordingLog.h"
#include "tests/support/RecordingNotificationService.h"
#include "tests/support/ScriptedRandom.h"
#include "tests/support/TehranTime.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kavenda {
namespace {

using test::tehran;

class Reminders : public ::testing::Test {
protected:
    Reminders() : paths(temp.path() / "documents", temp.path() / "resources")
    {
        test::buildFixtureDatabase(paths.resourceFolder(), {"fixture-data.sql", "offset-city.sql"});
    }

    MyDB& db()
    {
        if (!db_)
            db_.emplace("Icons", paths, log);
        return *db_;
    }

    MyNotification& scheduler()
    {
        if (!scheduler_)
            scheduler_.emplace(db(), clock, calendar, notifications, random, log);
        return *scheduler_;
    }

    void choose(int stateId)
    {
        ASSERT_TRUE(db().ExecuteNonQuery("INSERT INTO tSelectedStates VALUES(" + std::to_string(stateId) + ", 1)"));
    }
    void settings(const std::string& assignments)
    {
        ASSERT_TRUE(db().ExecuteNonQuery("UPDATE tSetting SET " + assignments));
    }

    std::vector<NotificationRecord> update()
    {
        scheduler().update();
        return notifications.records;
    }

    std::vector<NotificationRecord> withSound(const std::string& sound) const
    {
        std::vector<NotificationRecord> found;
        std::copy_if(notifications.records.begin(), notifications.records.end(), std::back_inserter(found),
                     [&](const NotificationRecord& r) { return r.soundName == sound; });
        return found;
    }

    test::TempFolder temp;
    FixedPaths paths;
    test::RecordingLog log;
    FixedClock clock{tehran(2013, 5, 22, 0, 1)};  // 1 Khordad 1392, 00:01
    SystemPersianCalendar calendar;
    test::RecordingNotificationService notifications;
    test::ScriptedRandom random{{3, 7, 1}};
    std::optional<MyDB> db_;
    std::optional<MyNotification> scheduler_;
};

TEST_F(Reminders, ACentreWithEverythingOnJustAfterMidnightGetsSixADayForFiveDays)
{
    choose(32);
    settings("Item0 = 1, Item1 = 1, Item2 = 1, Item3 = 10, Item4 = 20, Item5 = 30");
    const auto records = update();
    ASSERT_EQ(records.size(), 30u);
    EXPECT_EQ(records[0].alertBody, "اذان صبح به افق تهران");
    EXPECT_EQ(records[0].fireDate, tehran(2013, 5, 22, 5, 40));  // 4:40 standard + summer hour
    EXPECT_EQ(records[1].alertBody, "اذان ظهر به افق تهران");
    EXPECT_EQ(records[2].alertBody, "اذان مغرب به افق تهران");
    EXPECT_EQ(records[2].fireDate, tehran(2013, 5, 22, 20, 42));  // 19:42 on 1 Khordad
    EXPECT_EQ(records[3].alertBody, "تا طلوع آفتاب تنها ١٠ دقیفه زمان باقیست");
    EXPECT_EQ(records[3].fireDate, tehran(2013, 5, 22, 6, 57));  // 6:07 + 1 hour - 10 minutes
    EXPECT_EQ(records[3].soundName, "alarm.wav");
    EXPECT_EQ(records[4].alertBody, "تا اذان صبح تنها ٢٠ دقیفه زمان باقیست");
    EXPECT_EQ(records[4].soundName, "11.wav");
    EXPECT_EQ(records[4].fireDate, tehran(2013, 5, 22, 5, 20));
    EXPECT_EQ(records[5].alertBody, "تا اذان مغرب تنها ٣٠ دقیفه زمان باقیست");
    EXPECT_EQ(records[5].soundName, "12.wav");
    EXPECT_EQ(records[5].fireDate, tehran(2013, 5, 22, 20, 12));
    EXPECT_EQ(records[29].fireDate, tehran(2013, 5, 26, 17, 54));  // 17:24 of 5 Khordad + 1 h - 30 min
    for (const auto& record : records) {
        EXPECT_EQ(record.alertAction, "Ok");
        EXPECT_EQ(record.timeZone, "Asia/Tehran");
        EXPECT_EQ(record.userInfo, (std::map<std::string, std::string>{{"someKey", "someValue"}}));
    }
    ASSERT_EQ(log.lines.size(), 30u);
    EXPECT_EQ(log.lines[0], "22 5 2013 / 5:40 - 0 - 0.wav");
}

TEST_F(Reminders, AnOffsetCityIsShiftedPerColumnForFourDays)
{
    clock.set(tehran(2013, 11, 11, 0, 1));  // 20 Aban 1392
    choose(63);
    settings("Item0 = 1, Item1 = 1, Item2 = 1, Item3 = 15, Item4 = 30, Item5 = 10");
    const auto records = update();
    ASSERT_EQ(records.size(), 24u);
    EXPECT_EQ(records[0].alertBody, "اذان صبح به افق شهریار");
    EXPECT_EQ(records[0].fireDate, tehran(2013, 11, 11, 4, 32));  // 4:35 - 3, no summer hour in Aban
    EXPECT_EQ(records[4].fireDate, tehran(2013, 11, 11, 4, 2));  // suhur warning 30 minutes before
    // Fixture 920820: T2 6:04, T3 11:50, T5 17:24; offsets T2 +2, T3 +5, T5 +7.
    EXPECT_EQ(records[1].fireDate, tehran(2013, 11, 11, 11, 55));
    EXPECT_EQ(records[2].fireDate, tehran(2013, 11, 11, 17, 31));
    EXPECT_EQ(records[3].fireDate, tehran(2013, 11, 11, 5, 51));  // sunrise 6:06 less 15 minutes
    EXPECT_EQ(records[5].fireDate, tehran(2013, 11, 11, 17, 21));  // evening call 17:31 less 10
    EXPECT_EQ(records[23].fireDate, tehran(2013, 11, 14, 17, 24));  // the fourth day is the last
}

TEST_F(Reminders, TheFirstCityOfTheListIsAnnounced)
{
    ASSERT_TRUE(db().ExecuteNonQuery("INSERT INTO tSelectedStates VALUES(32, 2), (33, 1)"));
    settings("Item0 = 1, Item1 = 0, Item2 = 0");
    const auto records = update();
    ASSERT_EQ(records.size(), 5u);
    EXPECT_EQ(records[0].alertBody, "اذان صبح به افق اصفهان");
    EXPECT_EQ(records[0].fireDate, tehran(2013, 5, 22, 5, 56));  // اصفهان's 4:56 on 920301
}

// Without its own offset row first, a non-centre city would be announced with its centre's
// times unshifted, or with an offset read from a day's times.
TEST_F(Reminders, ANonCentreCityWithoutItsOwnOffsetRowFirstGetsNoPrayerTimes)
{
    const struct {
        const char* name;
        int city;
        const char* change;
        // clang-format off
    } cases[] = {
        {"no offset row", 63, "DELETE FROM tTimes WHERE StateID = 63"},
        {"a day's row instead", 63,
         "UPDATE tTimes SET Date = 920301, T1 = '4:30', T3 = '11:50', T5 = '19:40' WHERE StateID = 63"},
        {"an id below its centre's", 20,
         "INSERT INTO tStates(StateID, Name, ParentID, IsCenter) VALUES(20, 'اسلامشهر', 1, 0);"
         " INSERT INTO tTimes VALUES(20, 14000101, 1, 1, 1, 1, 1, 1)"},
    };
    // clang-format on
    for (const auto& c : cases) {
        test::TempFolder folder;
        const FixedPaths own(folder.path() / "documents", folder.path() / "resources");
        const auto file = test::buildFixtureDatabase(own.resourceFolder(), {"fixture-data.sql", "offset-city.sql"});
        test::execSql(file, c.change);
        test::execSql(file,
                      "INSERT INTO tSelectedStates VALUES(" + std::to_string(c.city)
                          + ", 1); UPDATE tSetting SET Item0 = 1, Item1 = 1, Item2 = 1, Item7 = '08:00'");
        MyDB ownDb("Icons", own, log);
        notifications.records.clear();
        MyNotification(ownDb, clock, calendar, notifications, random, log).update();
        EXPECT_TRUE(withSound("0.wav").empty()) << c.name;
        EXPECT_EQ(withSound("times.wav").size(), 5u) << c.name;
    }
}

TEST_F(Reminders, EachReminderTakesTheSummerHourOfItsOwnDay)
{
    choose(32);
    settings("Item0 = 1, Item1 = 0, Item2 = 0");
    clock.set(tehran(2013, 9, 20, 0, 1));  // 29 Shahrivar: rows 920629 .. 920702
    auto records = update();
    ASSERT_EQ(records.size(), 5u);
    EXPECT_EQ(records[1].fireDate, tehran(2013, 9, 21, 5, 40));  // day 185: 4:40 + 1
    EXPECT_EQ(records[2].fireDate, tehran(2013, 9, 22, 4, 41));  // day 186: as stored

    clock.set(tehran(2014, 3, 18, 0, 1));  // 27 Esfand: rows 921227 .. 930102
    records = update();
    ASSERT_EQ(records.size(), 5u);
    EXPECT_EQ(records[2].fireDate, tehran(2014, 3, 20, 4, 38));  // 29 Esfand: as stored
    EXPECT_EQ(records[3].fireDate, tehran(2014, 3, 21, 5, 39));  // 1 Farvardin: summer hour again
}

TEST_F(Reminders, SevenCharacterKeysAndTheEndOfSummerTime)
{
    choose(32);
    settings("Item0 = 1, Item1 = 0, Item2 = 0");
    clock.set(tehran(2021, 3, 21, 0, 1));  // 1 Farvardin 1400
    auto records = update();
    ASSERT_GE(records.size(), 1u);
    EXPECT_EQ(records[0].fireDate, tehran(2021, 3, 21, 5, 41));

    clock.set(tehran(2023, 3, 21, 0, 1));  // 1 Farvardin 1402: no summer hour any more
    records = update();
    ASSERT_EQ(records.size(), 2u);
    EXPECT_EQ(records[0].fireDate, tehran(2023, 3, 21, 4, 37));
}

TEST_F(Reminders, ADayWithoutATimeHasNoReminderForIt)
{
    ASSERT_TRUE(db().ExecuteNonQuery("UPDATE tTimes SET T3 = NULL WHERE StateID = 32 AND Date = 920302"));
    ASSERT_TRUE(db().ExecuteNonQuery("UPDATE tTimes SET T3 = '' WHERE StateID = 32 AND Date = 920303"));
    choose(32);
    settings("Item0 = 0, Item1 = 1, Item2 = 0");
    const auto records = update();
    ASSERT_EQ(records.size(), 3u);
    EXPECT_EQ(records[1].fireDate, tehran(2013, 5, 25, 12, 49));  // 920304's 11:49 + 1
}

TEST_F(Reminders, AMomentEqualToNowIsScheduledOneASecondLateIsNot)
{
    choose(32);
    settings("Item0 = 1, Item1 = 0, Item2 = 0");
    clock.set(tehran(2013, 5, 22, 5, 40, 0));
    EXPECT_EQ(update().size(), 5u);
    clock.set(tehran(2013, 5, 22, 5, 40, 1));
    EXPECT_EQ(update().size(), 4u);
}

TEST_F(Reminders, SoundChoices)
{
    choose(32);
    settings("Item0 = 1, Item1 = 1, Item2 = 1, Item3 = 5, Item6 = 9, Item7 = '08:00'");
    auto records = update();
    std::vector<std::string> drawn;
    for (const auto& r : records)
        if (r.alertBody.starts_with("اذان"))
            drawn.push_back(r.soundName);
    ASSERT_EQ(drawn.size(), 15u);
    EXPECT_EQ(drawn[0], "3.wav");
    EXPECT_EQ(drawn[1], "7.wav");
    // The log shows the number drawn, also beside a fixed sound; occasions keep sound 0.
    ASSERT_EQ(log.lines.size(), 26u);
    EXPECT_EQ(log.lines[1], "23 5 2013 / 8:0 - 0 - times.wav");
    EXPECT_EQ(log.lines[6], "22 5 2013 / 5:40 - 3 - 3.wav");
    EXPECT_EQ(log.lines[9], "22 5 2013 / 7:2 - 3 - alarm.wav");
    // A draw is made for every record, also those with a fixed sound, occasions excepted.
    EXPECT_EQ(random.draws, 20);
    EXPECT_EQ(withSound("alarm.wav").size(), 5u);

    settings("Item6 = 10");
    update();
    EXPECT_EQ(withSound("10.wav").size(), 15u);
}

TEST_F(Reminders, NoChosenCitySchedulesNothingAtAll)
{
    settings("Item0 = 1, Item7 = '08:00'");
    notifications.records.push_back(NotificationRecord{});
    EXPECT_TRUE(update().empty());
    EXPECT_EQ(notifications.cancelCalls, 1);
    EXPECT_TRUE(log.lines.empty());
}

TEST_F(Reminders, OccasionsAtTheChosenWallClockTime)
{
    choose(32);
    settings("Item0 = 0, Item1 = 0, Item2 = 0, Item7 = '08:00'");
    clock.set(tehran(2013, 5, 23, 7, 0));  // 2 Khordad, before eight
    auto records = update();
    ASSERT_EQ(records.size(), 5u);
    EXPECT_EQ(log.lines.front(), "08:00");
    EXPECT_EQ(records[0].fireDate, tehran(2013, 5, 23, 8, 0));
    EXPECT_EQ(records[0].alertBody, "وقایع امروز : \nسالروز آزادسازی خرمشهر");
    EXPECT_EQ(records[0].soundName, "times.wav");
    EXPECT_EQ(records[1].alertBody, "وقایع امروز : \nشهادت امام علی النقی-ولادت امام حسین");
    EXPECT_EQ(records[3].fireDate, tehran(2014, 3, 20, 8, 0));  // a standard-time day, same wall clock
    EXPECT_EQ(records[4].fireDate, tehran(2014, 3, 21, 8, 0));  // the sixth date (1400) waits

    clock.set(tehran(2013, 5, 23, 8, 0, 1));  // today's announcement has gone
    records = update();
    ASSERT_EQ(records.size(), 4u);
    EXPECT_EQ(records[0].fireDate, tehran(2013, 5, 25, 8, 0));
}

TEST_F(Reminders, AnnouncementTimesThatAreOff)
{
    choose(32);
    for (const char* off : {"0", "", "8", "abc"}) {
        settings(std::string("Item0 = 0, Item1 = 0, Item2 = 0, Item7 = '") + off + "'");
        log.lines.clear();
        EXPECT_TRUE(update().empty()) << off;
        EXPECT_TRUE(log.lines.empty()) << off;
    }
}

}  // namespace
}  // namespace kavenda
