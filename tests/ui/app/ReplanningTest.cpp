// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "desktop/Replanning.h"
#include "desktop/SystemPersianCalendar.h"
#include "tests/support/FixedClock.h"
#include "tests/support/RecordingLog.h"
#include "tests/support/TehranTime.h"

#include <QtTest>

#include <string>
#include <vector>

namespace kavenda {

// The program's looks at the clocks, on a clock the test moves.
class ReplanningTest : public QObject {
    Q_OBJECT

private slots:
    void aJumpDeliversWhatIsDueThenRebuildsOnce()
    {
        FixedClock clock(test::tehran(2026, 11, 22, 11, 0));
        SystemPersianCalendar calendar;
        test::RecordingLog log;
        std::vector<std::string> calls;
        Replanning replanning(
            clock, calendar, log, [&calls] { calls.push_back("deliver"); },
            [&calls](ReplanWatch::Change change) {
                calls.push_back(change == ReplanWatch::Change::clockJump ? "jump" : "other");
            });
        QCOMPARE(calls, std::vector<std::string>{"deliver"});
        const auto look = [&] {
            calls.clear();
            replanning.look();
            return calls;
        };
        QCOMPARE(look(), std::vector<std::string>{"deliver"});
        // Three hours pass on the wall clock only: a resume from suspend.
        clock.set(test::tehran(2026, 11, 22, 14, 0));
        QCOMPARE(look(), (std::vector<std::string>{"deliver", "jump"}));
        QCOMPARE(log.lines, std::vector<std::string>{"reminders rebuilt: the clock jumped"});
        QCOMPARE(look(), std::vector<std::string>{"deliver"});
    }
};

}  // namespace kavenda

QTEST_MAIN(kavenda::ReplanningTest)
#include "ReplanningTest.moc"
