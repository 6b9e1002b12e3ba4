// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/TrayStatus.h"
#include "desktop/SingleInstance.h"
#include "desktop/SystemPersianCalendar.h"
#include "reminders/ReminderSound.h"
#include "tests/support/FixedClock.h"
#include "tests/support/FixedPaths.h"
#include "tests/support/RecordingAudioPlayer.h"
#include "tests/support/RecordingLog.h"
#include "tests/support/RecordingNotificationService.h"
#include "tests/support/TehranTime.h"
#include "tests/support/TempFolder.h"

#include <QtTest>
#include <QtWidgets>

namespace kavenda {

using test::tehran;

// The tray's tooltip and menu, and the hand-over of a second start, on the offscreen platform.
class TrayTest : public QObject {
    Q_OBJECT

private slots:
    void theTooltipNamesTheNextReminderAndTheMenuStopsTheCall()
    {
        QSystemTrayIcon tray;
        QMenu menu;
        menu.addAction(QStringLiteral("نمایش"));
        tray.setContextMenu(&menu);
        FixedClock clock(tehran(2026, 11, 22, 14, 58));
        SystemPersianCalendar calendar;
        test::RecordingNotificationService notifications;
        test::RecordingAudioPlayer audio;
        FixedPaths paths("/documents", KAVENDA_RESOURCE_DIR);
        test::RecordingLog log;
        ReminderSound sound(audio, paths, log);
        TrayStatus status(&tray, sound, notifications, clock, calendar);
        QCOMPARE(tray.toolTip(), QGuiApplication::applicationDisplayName());
        notifications.schedule(
            {tehran(2026, 11, 23, 5, 20), "Asia/Tehran", "اذان صبح به افق تهران", "Ok", "3.wav", {}});
        const NotificationRecord evening{
            tehran(2026, 11, 22, 17, 13), "Asia/Tehran", "اذان مغرب به افق تهران", "Ok", "3.wav", {}};
        notifications.schedule(evening);
        status.refresh();
        QCOMPARE(tray.toolTip(), QStringLiteral("اذان مغرب به افق تهران، ١٧:١٣ (٢ ساعت و ١٥ دقیقه دیگر)"));
        QAction* stop = menu.actions().first();
        QCOMPARE(stop->text(), QStringLiteral("توقف اذان"));
        QVERIFY(!stop->isVisible());
        sound.play(evening);
        emit menu.aboutToShow();
        QVERIFY(stop->isVisible());
        stop->trigger();
        QVERIFY(!audio.playing && !stop->isVisible());
    }

    void aSecondStartOnTheSameFolderHandsOverItsWish()
    {
        test::TempFolder folder;
        SingleInstance running(folder.path());
        QVERIFY(!SingleInstance(folder.path()).handOver(false));
        QVERIFY(running.listen());
        QSignalSpy shows(&running, &SingleInstance::showRequested);
        QVERIFY(SingleInstance(folder.path() / ".").handOver(true));
        QTest::qWait(200);
        QCOMPARE(shows.count(), 0);
        QVERIFY(SingleInstance(folder.path()).handOver(false));
        QVERIFY(shows.wait(2000));
    }
};

}  // namespace kavenda

QTEST_MAIN(kavenda::TrayTest)
#include "TrayTest.moc"
