// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

// The program's clock run over the end of the last year its working copy holds: the coming
// years are computed off the window's thread, and the reminders go on into them without a gap.
#include "app/HorizonKeeper.h"
#include "calendar/DateTimePersian.h"
#include "data/MyDB.h"
#include "data/Statements.h"
#include "desktop/Replanning.h"
#include "desktop/SystemPersianCalendar.h"
#include "reminders/MyNotification.h"
#include "tests/support/FixedClock.h"
#include "tests/support/FixedPaths.h"
#include "tests/support/RecordingLog.h"
#include "tests/support/RecordingNotificationService.h"
#include "tests/support/ScriptedRandom.h"
#include "tests/support/TempFolder.h"
#include "text/Format.h"

#include <QSignalSpy>
#include <QtTest>

#include <algorithm>
#include <set>

namespace kavenda {

class YearEndTest : public QObject {
    Q_OBJECT

private:
    // The days (date keys) of the pending calls; after the first, a day without its three calls
    // is named instead.
    std::vector<std::string> daysOfTheCalls(const test::RecordingNotificationService& notifications) const
    {
        std::vector<std::string> days;
        std::vector<int> calls;
        for (const NotificationRecord& record : notifications.pending()) {
            const std::string day = keyOf(record.fireDate);
            if (days.empty() || days.back() != day) {
                days.push_back(day);
                calls.push_back(0);
            }
            ++calls.back();
        }
        for (std::size_t i = 1; i < calls.size(); ++i)
            if (calls[i] != 3)
                return {"a day without its three calls: " + days[i]};
        return days;
    }

    std::string keyOf(Instant moment) const { return DateTimePersian::init(moment, calendar).getPersianDate(); }
    std::string keyOf(int year, int month, int day) const { return keyOf(calendar.instantOf(year, month, day, 12, 0)); }

    SystemPersianCalendar calendar;

private slots:
    void theRemindersRunOnIntoTheComputedYears()
    {
        test::TempFolder temp;
        FixedPaths paths(temp.path(), KAVENDA_RESOURCE_DIR);
        test::RecordingLog log;
        MyDB db("Icons", paths, log);
        QVERIFY(db.ExecuteNonQuery(formatSql(sql::insertChosenCity, {39, 1})));
        QCOMPARE(db.ExecuteScaler("SELECT MAX(Date) FROM tEvents").value_or(""), std::string("1101229"));
        // 27 Esfand 1410, late in the evening: the shipped days end in two days.
        FixedClock clock(calendar.instantOf(1410, 12, 27, 22, 0));
        test::RecordingNotificationService notifications;
        test::ScriptedRandom random({0});
        MyNotification scheduler(db, clock, calendar, notifications, random, log);
        HorizonKeeper horizon(db.dbPath(), log);
        QSignalSpy settled(&horizon, &HorizonKeeper::settled);
        connect(&horizon, &HorizonKeeper::yearsAdded, this, [&] { scheduler.update(); });
        const auto today = [&] { return std::stoi(keyOf(clock.now())); };
        // A start: the reminders from what is held, the top-up behind them.
        scheduler.update();
        horizon.keepAhead(today());
        QVERIFY(horizon.busy());
        QCOMPARE(daysOfTheCalls(notifications).back(), keyOf(1411, 1, 1));  // the last day held
        QVERIFY(settled.wait(120'000));
        QCOMPARE(
            daysOfTheCalls(notifications),
            (std::vector<std::string>{keyOf(1410, 12, 28), keyOf(1410, 12, 29), keyOf(1411, 1, 1), keyOf(1411, 1, 2)}));
        // Every midnight over the turn of the year: five whole days of calls from today on.
        Replanning replanning(
            clock, calendar, log, [] {},
            [&](ReplanWatch::Change) {
                scheduler.update();
                horizon.keepAhead(today());
            });
        for (int step = 1; step <= 5; ++step) {
            const Instant midnight = calendar.instantOf(1410, 12, 27, 0, 1) + std::chrono::hours(24 * step);
            clock.set(midnight);
            replanning.look();
            std::vector<std::string> fiveDays;
            for (int day = 0; day < 5; ++day)
                fiveDays.push_back(keyOf(midnight + std::chrono::hours(24 * day)));
            QCOMPARE(daysOfTheCalls(notifications), fiveDays);
            if (horizon.busy())
                QVERIFY(settled.wait(120'000));
        }
        // Nothing more was needed after the one top-up: 400 days lay ahead all along.
        QCOMPARE(std::count_if(log.lines.begin(), log.lines.end(),
                               [](const std::string& line) { return line.starts_with("kavenda: added"); }),
                 1);
    }
};

}  // namespace kavenda

QTEST_MAIN(kavenda::YearEndTest)
#include "YearEndTest.moc"
