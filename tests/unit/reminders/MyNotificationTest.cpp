// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "reminders/MyNotification.h"

#include "desktop/SystemPersianCalendar.h"
#include "reminders/NextReminderText.h"
#include "reminders/ReminderSound.h"
#include "tests/support/FixedClock.h"
#include "tests/support/FixedPaths.h"
#include "tests/support/FixtureDatabase.h"
#include "tests/support/RecordingAudioPlayer.h"
#include "tests/support/RecordingLog.h"
#include "tests/support/RecordingNotificationService.h"
#include "tests/support/ScriptedRandom.h"
#include "tests/support/TehranTime.h"
#include "tests/support/TempFolder.h"

#include <algorithm>
#include <fstream>
#include <tuple>

namespace kavenda {
namespace {

using test::tehran;

class Reminders : public test::WorkingCopy {
protected:
    Reminders() : WorkingCopy({"fixture-data.sql", "offset-city.sql"}) {}

    std::vector<NotificationRecord> update()
    {
        scheduler.update();
        return notifications.records;
    }

    std::size_t withSound(const std::string& sound) const
    {
        return static_cast<std::size_t>(
            std::count_if(notifications.records.begin(), notifications.records.end(),
                          [&](const NotificationRecord& r) { return r.soundName == sound; }));
    }

    FixedClock clock{tehran(2013, 5, 22, 0, 1)};  // 1 Khordad 1392, 00:01
    SystemPersianCalendar calendar;
    test::RecordingNotificationService notifications;
    test::ScriptedRandom random{{3, 7, 1}};
    MyNotification scheduler{db, clock, calendar, notifications, random, log};
};

TEST_F(Reminders, ACentreWithEverythingOnJustAfterMidnightGetsSixADayForFiveDays)
{
    choose({32});
    setSettings("Item0 = 1, Item1 = 1, Item2 = 1, Item3 = 10, Item4 = 20, Item5 = 30, Item6 = 9");
    const auto records = update();
    ASSERT_EQ(records.size(), 30u);
    const std::tuple<std::size_t, const char*, Instant, const char*> expected[] = {
        {0, "اذان صبح به افق تهران", tehran(2013, 5, 22, 5, 40), "3.wav"},  // 4:40 standard + summer hour
        {1, "اذان ظهر به افق تهران", tehran(2013, 5, 22, 12, 53), "7.wav"},
        {2, "اذان مغرب به افق تهران", tehran(2013, 5, 22, 20, 42), "1.wav"},  // 19:42 on 1 Khordad
        {3, "تا طلوع آفتاب تنها ١٠ دقیفه زمان باقیست", tehran(2013, 5, 22, 6, 57), "alarm.wav"},
        {4, "تا اذان صبح تنها ٢٠ دقیفه زمان باقیست", tehran(2013, 5, 22, 5, 20), "11.wav"},
        {5, "تا اذان مغرب تنها ٣٠ دقیفه زمان باقیست", tehran(2013, 5, 22, 20, 12), "12.wav"},
        {29, "تا اذان مغرب تنها ٣٠ دقیفه زمان باقیست", tehran(2013, 5, 26, 17, 54), "12.wav"},  // 5 Khordad
    };
    for (const auto& [index, body, at, sound] : expected)
        EXPECT_EQ(std::tie(records[index].alertBody, records[index].fireDate, records[index].soundName),
                  std::tuple(body, at, sound))
            << index;
    for (const auto& record : records)
        EXPECT_EQ(record.alertAction + " " + record.timeZone, "Ok Asia/Tehran");
    // Sound 9 draws for every record; the log shows the number drawn, also beside a fixed sound.
    ASSERT_EQ(log.lines.size(), 30u);
    EXPECT_EQ(log.lines[0], "22 5 2013 / 5:40 - 3 - 3.wav");
    EXPECT_EQ(log.lines[3], "22 5 2013 / 6:57 - 3 - alarm.wav");
    EXPECT_EQ(random.draws, 30);
}

// The reminders' layer of an offset city: its centre's times shifted per column.
TEST_F(Reminders, AnOffsetCityIsShiftedPerColumnForFourDays)
{
    clock.set(tehran(2013, 11, 11, 0, 1));  // 20 Aban 1392
    choose({63});
    setSettings("Item0 = 1, Item1 = 1, Item2 = 1, Item3 = 15, Item4 = 30, Item5 = 10");
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

// Without its own offset row first, a non-centre city would be announced with its centre's
// times unshifted, or with an offset read from a day's times.
TEST_F(Reminders, ANonCentreCityWithoutItsOwnOffsetRowFirstGetsNoPrayerTimes)
{
    const std::tuple<const char*, int, std::vector<std::string>> cases[] = {
        {"no offset row", 63, {"DELETE FROM tTimes WHERE StateID = 63"}},
        {"a day's row instead",
         63,
         {"UPDATE tTimes SET Date = 920301, T1 = '4:30', T3 = '11:50', T5 = '19:40' WHERE StateID = 63"}},
        {"an id below its centre's",
         20,
         {"INSERT INTO tStates(StateID, Name, ParentID, IsCenter) VALUES(20, 'اسلامشهر', 1, 0)",
          "INSERT INTO tTimes VALUES(20, 14000101, 1, 1, 1, 1, 1, 1)"}},
    };
    setSettings("Item0 = 1, Item1 = 1, Item2 = 1, Item7 = '08:00'");
    for (const auto& [name, city, changes] : cases) {
        exec("DELETE FROM tSelectedStates");
        exec("DELETE FROM tTimes WHERE StateID = 63");
        exec("INSERT INTO tTimes VALUES(63, 14000101, -3, 2, 5, 0, 7, 0)");
        for (const std::string& change : changes)
            exec(change);
        choose({city});
        update();
        EXPECT_EQ(withSound("0.wav"), 0u) << name;
        EXPECT_EQ(withSound("times.wav"), 5u) << name;
    }
}

// Each reminder takes the summer hour of its own day; keys of seven characters from 1400; no summer
// hour from 1402. The next five rows held are announced, whatever their dates, for the first city.
TEST_F(Reminders, EachDawnCallTakesTheSummerHourOfItsOwnDay)
{
    choose({32});
    setSettings("Item0 = 1, Item1 = 0, Item2 = 0");
    const std::tuple<Instant, std::size_t, std::size_t, Instant> cases[] = {
        {tehran(2013, 9, 20, 0, 1), 5, 1, tehran(2013, 9, 21, 5, 40)},  // day 185: 4:40 + 1
        {tehran(2013, 9, 20, 0, 1), 5, 2, tehran(2013, 9, 22, 4, 41)},  // day 186: as stored
        {tehran(2014, 3, 18, 0, 1), 5, 2, tehran(2014, 3, 20, 4, 38)},  // 29 Esfand: as stored
        {tehran(2014, 3, 18, 0, 1), 5, 3, tehran(2014, 3, 21, 5, 39)},  // 1 Farvardin: summer hour again
        {tehran(2021, 3, 21, 0, 1), 5, 0, tehran(2021, 3, 21, 5, 41)},  // 1 Farvardin 1400
        {tehran(2023, 3, 21, 0, 1), 2, 0, tehran(2023, 3, 21, 4, 37)},  // 1 Farvardin 1402
        {tehran(2013, 5, 22, 5, 40, 0), 5, 0, tehran(2013, 5, 22, 5, 40)},  // a moment equal to now goes out
        {tehran(2013, 5, 22, 5, 40, 1), 4, 0, tehran(2013, 5, 23, 5, 41)},  // a second late it does not
    };
    for (const auto& [now, count, index, dawn] : cases) {
        clock.set(now);
        const auto records = update();
        ASSERT_EQ(records.size(), count) << index;
        EXPECT_EQ(records[index].fireDate, dawn) << index;
    }
    exec("INSERT INTO tSelectedStates VALUES(33, -1)");
    clock.set(tehran(2013, 5, 22, 0, 1));
    const auto records = update();
    ASSERT_EQ(records.size(), 5u);
    EXPECT_EQ(records[0].alertBody, "اذان صبح به افق اصفهان");
    EXPECT_EQ(records[0].fireDate, tehran(2013, 5, 22, 5, 56));  // اصفهان's 4:56 on 920301
}

TEST_F(Reminders, ADayWithoutATimeHasNoReminderForIt)
{
    exec("UPDATE tTimes SET T3 = NULL WHERE StateID = 32 AND Date = 920302");
    exec("UPDATE tTimes SET T3 = '' WHERE StateID = 32 AND Date = 920303");
    choose({32});
    setSettings("Item0 = 0, Item1 = 1, Item2 = 0");
    const auto records = update();
    ASSERT_EQ(records.size(), 3u);
    EXPECT_EQ(records[1].fireDate, tehran(2013, 5, 25, 12, 49));  // 920304's 11:49 + 1
}

TEST_F(Reminders, AFixedSoundAndTheOccasionsSound)
{
    choose({32});
    setSettings("Item0 = 1, Item1 = 1, Item2 = 1, Item6 = 10, Item7 = '08:00'");
    update();
    EXPECT_EQ(withSound("10.wav"), 15u);
    EXPECT_EQ(withSound("times.wav"), notifications.records.size() - 15);
    EXPECT_EQ(random.draws, 0);
}

TEST_F(Reminders, NoChosenCitySchedulesNothingAtAll)
{
    setSettings("Item0 = 1, Item7 = '08:00'");
    notifications.records.push_back(NotificationRecord{});
    EXPECT_TRUE(update().empty());
    EXPECT_EQ(notifications.cancelCalls, 1);
    EXPECT_TRUE(log.lines.empty());
}

TEST_F(Reminders, OccasionsAtTheChosenWallClockTime)
{
    choose({32});
    setSettings("Item0 = 0, Item1 = 0, Item2 = 0, Item7 = '08:00'");
    clock.set(tehran(2013, 5, 23, 7, 0));  // 2 Khordad, before eight
    auto records = update();
    ASSERT_EQ(records.size(), 5u);
    EXPECT_EQ(log.lines.front(), "08:00");
    EXPECT_EQ(records[0].fireDate, tehran(2013, 5, 23, 8, 0));
    EXPECT_EQ(records[0].alertBody, "وقایع امروز : \nسالروز آزادسازی خرمشهر");
    EXPECT_EQ(records[1].alertBody, "وقایع امروز : \nشهادت امام علی النقی-ولادت امام حسین");
    EXPECT_EQ(records[3].fireDate, tehran(2014, 3, 20, 8, 0));  // a standard-time day, same wall clock
    EXPECT_EQ(records[4].fireDate, tehran(2014, 3, 21, 8, 0));  // the sixth date (1400) waits

    clock.set(tehran(2013, 5, 23, 8, 0, 1));  // today's announcement has gone
    records = update();
    ASSERT_EQ(records.size(), 4u);
    EXPECT_EQ(records[0].fireDate, tehran(2013, 5, 25, 8, 0));

    for (const char* off : {"0", "", "8", "abc"}) {
        setSettings(std::string("Item7 = '") + off + "'");
        log.lines.clear();
        EXPECT_TRUE(update().empty()) << off;
        EXPECT_TRUE(log.lines.empty()) << off;
    }
}

// The tray's line: the earliest pending reminder, its time and the time left (a part of a minute
// counts as a whole one).
TEST(NextReminderText, NamesTheEarliestCallItsTimeAndTheTimeLeft)
{
    const auto reminder = [](Instant at, const std::string& body) {
        return NotificationRecord{at, "Asia/Tehran", body, "Ok", "0.wav", {}};
    };
    SystemPersianCalendar calendar;
    const Instant at = tehran(2026, 11, 22, 17, 13);
    // clang-format off
    const std::pair<Instant, std::string> cases[] = {
        {tehran(2026, 11, 22, 14, 58), "٢ ساعت و ١٥ دقیقه"},
        {tehran(2026, 11, 22, 14, 58, 30), "٢ ساعت و ١٥ دقیقه"},
        {tehran(2026, 11, 22, 15, 13), "٢ ساعت"},
        {tehran(2026, 11, 22, 17, 0), "١٣ دقیقه"},
        {tehran(2026, 11, 22, 17, 12, 59), "١ دقیقه"},
        {tehran(2026, 11, 20, 16, 3), "٢ روز و ١ ساعت و ١٠ دقیقه"},
        {at, "کمتر از یک دقیقه"},
    };
    // clang-format on
    for (const auto& [now, left] : cases)
        EXPECT_EQ(nextReminderText({reminder(at, "اذان مغرب به افق تهران")}, now, calendar),
                  "اذان مغرب به افق تهران، ١٧:١٣ (" + left + " دیگر)");

    const std::vector<NotificationRecord> pending = {
        reminder(tehran(2026, 11, 22, 11, 50), "اذان ظهر به افق تهران"),
        reminder(tehran(2026, 11, 22, 8, 5), "وقایع امروز : \nروز ملی"),
        reminder(tehran(2026, 11, 23, 5, 0), "اذان صبح به افق تهران"),
    };
    const Instant morning = tehran(2026, 11, 22, 6, 0);
    EXPECT_EQ(nextReminderText(pending, morning, calendar), "وقایع امروز :  روز ملی، ٠٨:٠٥ (٢ ساعت و ٥ دقیقه دیگر)");
    EXPECT_EQ(nextReminderText({}, morning, calendar), "");
}

using Calls = std::vector<std::string>;

class ReminderSoundTest : public ::testing::Test {
protected:
    ReminderSoundTest()
    {
        for (const char* name : {"3.wav", "alarm.wav"})
            std::ofstream(temp.path() / name) << "sound";
    }

    static NotificationRecord reminder(const std::string& soundName) { return {{}, "", "", "", soundName, {}}; }
    std::string file(const std::string& name) const { return (temp.path() / name).string(); }

    test::TempFolder temp;
    FixedPaths paths{"/documents", temp.path()};
    test::RecordingAudioPlayer audio;
    test::RecordingLog log;
    ReminderSound sound{audio, paths, log};
};

// A newer reminder cuts the older short and keeps its own ticket.
TEST_F(ReminderSoundTest, PlaysTheReminderSoundFromTheResourcesUntilItEnds)
{
    EXPECT_EQ(sound.play(reminder("")), 0);
    EXPECT_EQ(sound.play(reminder("missing.wav")), 0);
    EXPECT_FALSE(sound.isPlaying());
    EXPECT_NE(sound.play(reminder("3.wav")), 0);
    EXPECT_TRUE(sound.isPlaying());
    // The sound ends by itself: nothing is left to stop.
    audio.playing = false;
    EXPECT_FALSE(sound.isPlaying());
    sound.stop();
    EXPECT_EQ(audio.calls, (Calls{"open " + file("missing.wav"), "open " + file("3.wav"), "play"}));

    audio.calls.clear();
    log.lines.clear();
    const int older = sound.play(reminder("3.wav"));
    const int newer = sound.play(reminder("alarm.wav"));
    EXPECT_NE(older, newer);
    EXPECT_TRUE(sound.isPlaying());

    // Closing the older reminder's alert leaves the newer sound alone; its own stops it.
    sound.stop(older);
    EXPECT_TRUE(sound.isPlaying());
    sound.stop(newer);
    EXPECT_FALSE(sound.isPlaying());
    EXPECT_EQ(audio.calls,
              (Calls{"open " + file("3.wav"), "play", "stop", "open " + file("alarm.wav"), "play", "stop"}));
    EXPECT_EQ(log.lines,
              (std::vector<std::string>{"sound playing: 3.wav", "sound stopped", "sound playing: alarm.wav",
                                        "sound stopped"}));
}

}  // namespace
}  // namespace kavenda
