// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/AppDelegate.h"
#include "app/AppServices.h"
#include "data/MyDB.h"
#include "desktop/FixedScreen.h"
#include "desktop/SystemPersianCalendar.h"
#include "reminders/MyNotification.h"
#include "screens/main/MainViewController.h"
#include "tests/support/FixedClock.h"
#include "tests/support/FixedPaths.h"
#include "tests/support/FixtureDatabase.h"
#include "tests/support/RecordingAlerts.h"
#include "tests/support/RecordingLog.h"
#include "tests/support/RecordingNotificationService.h"
#include "tests/support/ScriptedRandom.h"
#include "tests/support/TehranTime.h"
#include "tests/support/TempFolder.h"
#include "widgets/Animations.h"
#include "widgets/PageIndicator.h"
#include "widgets/Pager.h"

#include <QSignalSpy>
#include <QtTest>

#include <algorithm>
#include <functional>

namespace kavenda {

// The shell's life events on the shared database and scheduler, which live for the whole
// process: one launch serves every case, in order.
class AppDelegateTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        setAnimationsEnabled(false);
        const auto database =
            test::buildFixtureDatabase(paths.resourceFolder(), {"fixture-data.sql", "main-screen.sql"});
        test::execSql(
            database,
            "INSERT INTO tSelectedStates VALUES(32, 0); UPDATE tSetting SET Item0 = 1, Item1 = 1, Item2 = 1;");
        MyDB::setUp(paths, log);
        MyNotification::setUp(clock, calendar, notifications, random, log);
        delegate = std::make_unique<AppDelegate>(
            AppServices{&clock, &calendar, &paths, &log, &notifications, &random, nullptr, nullptr, &alerts, &screen},
            [this](const NotificationRecord& record) { desktop.push_back(record); });
    }

    void launchCopiesTheDatabaseRebuildsTheRemindersAndShowsTheMainScreen()
    {
        const QSignalSpy finished(delegate.get(), &AppDelegate::launchFinished);
        QVERIFY(delegate->didFinishLaunchingWithOptions());
        QVERIFY(std::filesystem::exists(paths.documentsFolder() / "Icons"));
        QVERIFY(delegate->window()->isVisible());
        QCOMPARE(delegate->rootViewController()->pageCount(), 1);
        // The reminders' rebuild and becoming active follow the first frame, once, whatever the
        // focus does.
        QSignalSpy refreshed(delegate->rootViewController(), &MainViewController::refreshed);
        QCOMPARE(notifications.cancelCalls, 0);
        QCOMPARE(refreshed.count(), 0);
        QVERIFY(QTest::qWaitForWindowActive(delegate->window()));
        QTRY_COMPARE(finished.count(), 1);
        QTest::qWait(50);
        QVERIFY(!notifications.records.empty());  // read from the copy
        QCOMPARE(refreshed.count(), 1);
        QCOMPARE(notifications.cancelCalls, 1);
        QCOMPARE(finished.count(), 1);
    }

    // Clicking another window and coming back, or closing an alert, leaves the page as it was; a
    // return from the background updates the reminders once and refreshes the screen twice.
    void focusChangesAreNoLifeEventsButAReturnFromTheBackgroundIs()
    {
        MainViewController& main = *delegate->rootViewController();
        MyDB::initialize().ExecuteNonQuery("INSERT INTO tSelectedStates VALUES(33, 1)");
        main.refresh();
        QCOMPARE(main.pageCount(), 2);
        main.findChild<Pager*>(QStringLiteral("scrollView"))->setContentOffset(0, false);
        QSignalSpy refreshed(&main, &MainViewController::refreshed);
        const int updates = notifications.cancelCalls;
        const auto logged = log.lines.size();
        for (QEvent::Type type :
             {QEvent::WindowDeactivate, QEvent::WindowActivate, QEvent::WindowDeactivate, QEvent::WindowActivate})
            windowManagerSends(type);
        QTest::qWait(50);
        QCOMPARE(refreshed.count(), 0);
        QCOMPARE(notifications.cancelCalls, updates);
        QCOMPARE(main.findChild<Pager*>(QStringLiteral("scrollView"))->contentOffset(), 0.0);
        QCOMPARE(main.findChild<PageIndicator*>(QStringLiteral("pageControl"))->currentPage(), 0);
        delegate->window()->hide();
        QTest::qWait(50);
        QCOMPARE(refreshed.count(), 0);
        delegate->window()->show();
        QCOMPARE(refreshed.count(), 1);
        QTRY_COMPARE(refreshed.count(), 2);
        windowManagerSends(QEvent::WindowActivate);
        QTest::qWait(50);
        QCOMPARE(refreshed.count(), 2);
        QCOMPARE(notifications.cancelCalls, updates + 1);
        // The root screen's class name, once, after the scheduler's own lines.
        const std::vector<std::string> lines(log.lines.begin() + static_cast<long>(logged), log.lines.end());
        QCOMPARE(std::count(lines.begin(), lines.end(), std::string("MainViewController")), 1L);
        QCOMPARE(lines.back(), std::string("MainViewController"));
    }

    void aNotificationIsAnAlertWhileTheWindowIsActiveElseADesktopOne()
    {
        const NotificationRecord record{{}, "Asia/Tehran", "اذان ظهر به افق تهران", "Ok", "3.wav", {}};
        windowManagerSends(QEvent::WindowActivate);
        delegate->didReceiveLocalNotification(record);
        QCOMPARE(alerts.messages, std::vector<std::string>{record.alertBody});
        QVERIFY(desktop.empty());
        windowManagerSends(QEvent::WindowDeactivate);
        delegate->didReceiveLocalNotification(record);
        delegate->window()->hide();
        delegate->didReceiveLocalNotification(record);
        QCOMPARE(alerts.messages.size(), std::size_t(1));
        QCOMPARE(desktop, (std::vector<NotificationRecord>{record, record}));
    }

    // Without a tray (there is none offscreen) reminders, the occasions too, go on while the
    // window is closed, and the program says so; with every reminder off closing ends it. That it
    // says so once is the system test no-tray's.
    void withoutATrayTheClosedWindowKeepsAnnouncingWhileAReminderIsOn()
    {
        QVERIFY(!delegate->tray());
        const QuitEater eater;
        const QSignalSpy quits(delegate.get(), &AppDelegate::quitRequested);
        int told = 0;
        std::function<void()> quitFromNotice;
        delegate->setTellRunsInBackground([&](std::function<void()> quitProgram) {
            ++told;
            quitFromNotice = std::move(quitProgram);
        });
        test::execSql(paths.documentsFolder() / "Icons",
                      "UPDATE tSetting SET Item0 = 0, Item1 = 0, Item2 = 0, Item3 = 0, Item4 = 0, Item5 = 0, "
                      "Item7 = '8:00'");
        delegate->showWindow();
        QVERIFY2(!delegate->window()->close(), "the occasions are a reminder too");
        QCOMPARE(told, 1);
        QCOMPARE(quits.count(), 0);
        test::execSql(paths.documentsFolder() / "Icons", "UPDATE tSetting SET Item7 = '0'");
        delegate->showWindow();
        delegate->window()->close();
        QCOMPARE(quits.count(), 1);
        quitFromNotice();  // the notice's "خروج"
        QCOMPARE(quits.count(), 2);
    }

private:
    // What the window manager tells a window that gains or loses the focus.
    void windowManagerSends(QEvent::Type type)
    {
        QEvent event(type);
        QApplication::sendEvent(delegate->window(), &event);
    }

    // Keeps the test running when the program is asked to end.
    struct QuitEater : QObject {
        QuitEater() { qApp->installEventFilter(this); }
        bool eventFilter(QObject* watched, QEvent* event) override
        {
            return watched == qApp && event->type() == QEvent::Quit;
        }
    };

    test::TempFolder temp;
    FixedPaths paths{temp.path() / "documents", temp.path() / "resources"};
    test::RecordingLog log;
    FixedClock clock{test::tehran(2013, 7, 1, 12, 0)};
    SystemPersianCalendar calendar;
    test::RecordingNotificationService notifications;
    test::ScriptedRandom random{{0}};
    test::RecordingAlerts alerts;
    FixedScreen screen;
    std::vector<NotificationRecord> desktop;
    std::unique_ptr<AppDelegate> delegate;
};

}  // namespace kavenda

QTEST_MAIN(kavenda::AppDelegateTest)
#include "AppDelegateTest.moc"
