// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

// The reminders of a program left running for days, on the generated database from 1 Azar 1405
// (22 November 2026): the clocks are stepped as time passes, and the program looks as it does
// when it runs: what is due goes out first, then the reminders are rebuilt if the watch says so.
#include "reminders/MyNotification.h"
#include "reminders/ReplanWatch.h"

#include "desktop/SystemPersianCalendar.h"
#include "reminders/ReminderQueue.h"
#include "tests/support/FixedClock.h"
#include "tests/support/FixtureDatabase.h"
#include "tests/support/ScriptedRandom.h"
#include "tests/support/TehranTime.h"
#include "text/Format.h"

#include <algorithm>
#include <cstdlib>

namespace kavenda {
namespace {

using namespace std::chrono_literals;
using test::tehran;

constexpr int tehranCentre = 39;

class RunningReminders : public test::WorkingCopy {
protected:
    RunningReminders() : WorkingCopy({})
    {
        // The three calls only: one record per call and day.
        setSettings("Item0 = 1, Item1 = 1, Item2 = 1, Item3 = 0, Item4 = 0, Item5 = 0, Item7 = '0'");
        choose({tehranCentre});
        reminders.update();
        look();
    }

    void look()
    {
        for (NotificationRecord& record : queue.takeDue(clock.now()))
            fired.push_back({clock.now(), std::move(record)});
        const ReplanWatch::Change change = watch.look(clock.now(), monotonic);
        if (change != ReplanWatch::Change::none) {
            changes.push_back(change);
            reminders.update();
        }
    }

    // Time passes on both clocks, with a look every minute.
    void run(std::chrono::minutes span)
    {
        for (auto passed = 0min; passed < span; passed += 1min) {
            clock.set(clock.now() + 1min);
            monotonic += 1min;
            look();
        }
    }

    // The wall clock moves by itself (suspend and resume, a clock set by hand); a second passes.
    void jump(std::chrono::seconds wall)
    {
        clock.set(clock.now() + wall);
        monotonic += 1s;
        look();
    }

    // The moment of a stored time of a day of Azar 1405 in Tehran.
    Instant stored(int day, const std::string& column)
    {
        const std::string key = format("10509%02d", {day});
        const std::string time = scalar("SELECT " + column + " FROM tTimes WHERE StateID = 39 AND Date = " + key);
        const std::size_t colon = time.find(':');
        return tehran(2026, 11, 21 + day, std::stoi(time.substr(0, colon)), std::stoi(time.substr(colon + 1)));
    }

    int timesFired(const std::string& body, Instant at) const
    {
        return static_cast<int>(std::count_if(fired.begin(), fired.end(), [&](const auto& f) {
            return f.record.alertBody == body && f.record.fireDate == at;
        }));
    }

    struct Fired {
        Instant at;
        NotificationRecord record;
    };

    FixedClock clock{tehran(2026, 11, 22, 0, 1)};
    std::chrono::steady_clock::duration monotonic{1h};
    SystemPersianCalendar calendar;
    ReminderQueue queue;
    test::ScriptedRandom random{{0}};
    MyNotification reminders{db, clock, calendar, queue, random, log};
    ReplanWatch watch{calendar};
    std::vector<Fired> fired;
    std::vector<ReplanWatch::Change> changes;
};

const std::string dawn = "اذان صبح به افق تهران";
const std::string noon = "اذان ظهر به افق تهران";
const std::string evening = "اذان مغرب به افق تهران";

TEST_F(RunningReminders, TenDaysRunningFireEveryCallOfTenDaysAtItsMoment)
{
    run(std::chrono::days(10));

    ASSERT_EQ(fired.size(), 30u);
    for (int day = 1; day <= 10; ++day) {
        const std::string columns[] = {"T1", "T3", "T5"};
        const std::string bodies[] = {dawn, noon, evening};
        for (std::size_t call = 0; call < 3; ++call) {
            const Fired& one = fired[static_cast<std::size_t>(day - 1) * 3 + call];
            EXPECT_EQ(one.record.alertBody, bodies[call]) << day;
            EXPECT_EQ(one.record.fireDate, stored(day, columns[call])) << day;
            EXPECT_EQ(one.at, one.record.fireDate) << day;
        }
    }
    EXPECT_EQ(changes, std::vector<ReplanWatch::Change>(10, ReplanWatch::Change::newDay));
    // The next look comes just after midnight, or within the longest wait.
    EXPECT_EQ(watch.nextLookIn(tehran(2026, 11, 22, 23, 59, 30), 60'000ms), 31'000ms);
    EXPECT_EQ(watch.nextLookIn(tehran(2026, 11, 22, 12, 0), 60'000ms), 60'000ms);
}

class JumpOverTheNoonCall : public RunningReminders,
                            public ::testing::WithParamInterface<std::pair<std::chrono::minutes, bool>> {};

// From 11:00, before the noon call, the wall clock jumps past it; the later calls stay.
TEST_P(JumpOverTheNoonCall, FiresWhatIsAtMostFifteenMinutesLateAndDropsTheRest)
{
    run(11h - 1min);
    const Instant noonCall = stored(1, "T3");
    const auto [pastNoon, fires] = GetParam();
    jump(noonCall + pastNoon - clock.now());
    EXPECT_EQ(timesFired(noon, noonCall), fires ? 1 : 0);
    EXPECT_EQ(changes, std::vector<ReplanWatch::Change>{ReplanWatch::Change::clockJump});

    run(18h);
    EXPECT_EQ(timesFired(noon, noonCall), fires ? 1 : 0);
    EXPECT_EQ(timesFired(evening, stored(1, "T5")), 1);
    EXPECT_EQ(timesFired(dawn, stored(2, "T1")), 1);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Lateness, JumpOverTheNoonCall,
                         ::testing::Values(std::pair{1min, true}, std::pair{10min, true}, std::pair{15min, true},
                                           std::pair{16min, false}, std::pair{std::chrono::minutes(3h), false}),
                         [](const auto& named) { return "Late" + std::to_string(named.param.first.count()) + "min"; });
// clang-format on

TEST_F(RunningReminders, ANewTimeZoneRebuildsTheRemindersInIt)
{
    const Instant tehranEvening = stored(1, "T5");
    run(10h);
    ASSERT_TRUE(::setenv("TZ", "Asia/Dubai", 1) == 0);
    const bool followed = calendar.followSystemZone();
    look();
    const std::vector<NotificationRecord> pending = queue.pending();
    ::setenv("TZ", "Asia/Tehran", 1);
    calendar.followSystemZone();

    ASSERT_TRUE(followed);
    EXPECT_EQ(changes, std::vector<ReplanWatch::Change>{ReplanWatch::Change::zone});
    // The stored times are read as Dubai's wall clock, half an hour ahead of Tehran's.
    const auto evenings = std::count_if(pending.begin(), pending.end(), [&](const NotificationRecord& r) {
        return r.alertBody == evening && r.fireDate == tehranEvening - 30min && r.timeZone == "Asia/Dubai";
    });
    EXPECT_EQ(evenings, 1);
}

TEST_F(RunningReminders, NoCallFiresTwice)
{
    const Instant noonCall = stored(1, "T3");
    run(std::chrono::duration_cast<std::chrono::minutes>(noonCall - clock.now()));
    ASSERT_EQ(timesFired(noon, noonCall), 1);

    // A rebuild in the very second of the call (the window shown) schedules it again, but it
    // is not pending (the tray would announce it)...
    reminders.update();
    const std::vector<NotificationRecord> pending = queue.pending();
    EXPECT_TRUE(std::none_of(pending.begin(), pending.end(),
                             [&](const NotificationRecord& r) { return r.fireDate == noonCall; }));
    run(5min);
    // ...and so does a clock set back an hour.
    jump(-1h);
    run(2h);
    EXPECT_EQ(timesFired(noon, noonCall), 1);
    EXPECT_EQ(changes, std::vector<ReplanWatch::Change>{ReplanWatch::Change::clockJump});
}

}  // namespace
}  // namespace kavenda
