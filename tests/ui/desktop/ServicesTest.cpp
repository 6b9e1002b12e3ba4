// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "desktop/AudioModule.h"
#include "desktop/QtNotificationService.h"
#include "reminders/ReminderSound.h"
#include "tests/support/FixedClock.h"
#include "tests/support/FixedPaths.h"
#include "tests/support/RecordingAudioPlayer.h"
#include "tests/support/RecordingLog.h"

#include <QtTest>
#include <QtWidgets>

#include <algorithm>

#include <sys/stat.h>
#include <unistd.h>

namespace kavenda {
namespace {

const Instant start{std::chrono::seconds{1'372'665'600}};

NotificationRecord record(std::chrono::seconds after, const std::string& body)
{
    return {start + after, "Asia/Tehran", body, "Ok", "0.wav", {}};
}

}  // namespace

class ServicesTest : public QObject {
    Q_OBJECT

private slots:
    // Due records delivered earliest first, the rest kept; the timer fires at the moment of the
    // clock; cancelling stops what was about to fire, missed calls too.
    void deliversDueRecordsAtTheMomentOfTheClockUnlessCancelled()
    {
        using std::chrono::seconds;
        FixedClock clock(start);
        QtNotificationService service(clock);
        std::vector<std::string> delivered;
        service.setDelivery([&delivered](const NotificationRecord& r) { delivered.push_back(r.alertBody); });
        service.schedule(record(seconds{120}, "sunset"));
        service.schedule(record(seconds{60}, "noon"));
        service.schedule(record(seconds{60}, "noon, second sound"));
        service.schedule(record(seconds{600}, "evening"));
        QCOMPARE(service.nextFireDate(), std::optional<Instant>(start + seconds{60}));
        clock.set(start + seconds{59});
        service.deliverDue();
        QVERIFY(delivered.empty());
        clock.set(start + seconds{120});
        service.deliverDue();
        QCOMPARE(delivered, (std::vector<std::string>{"noon", "noon, second sound", "sunset"}));
        QCOMPARE(service.nextFireDate(), std::optional<Instant>(start + seconds{600}));
        delivered.clear();
        service.schedule(record(seconds{121}, "in a second"));
        service.schedule(record(seconds{120}, "now"));
        QTRY_COMPARE_WITH_TIMEOUT(delivered, std::vector<std::string>{"now"}, 3000);
        // The clock reaches the second record's moment; the timer set for it finds it due.
        clock.set(start + seconds{121});
        QTRY_COMPARE_WITH_TIMEOUT(delivered.size(), std::size_t{2}, 3000);
        service.schedule(record(seconds{122}, "now"));
        service.schedule(record(seconds{90}, "missed"));
        service.cancelAll();
        QTest::qWait(100);
        QCOMPARE(delivered.size(), std::size_t{2});
        QVERIFY(service.pending().empty());
        QCOMPARE(service.nextFireDate(), std::optional<Instant>());
    }

    // An own recording that cannot be played never silences the call: the program's recording of
    // the same name plays, and the log says why, once.
    void anOwnRecordingThatCannotPlayGivesWayToTheShippedOne_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<int>("mode");
        QTest::addColumn<QString>("why");
        QTest::newRow("corrupt") << QByteArray("RIFF\x10\0\0\0WAVEfmt garbage", 24) + QByteArray(4096, '\x7f') << 0644
                                 << QStringLiteral("no sound that can be decoded");
        QTest::newRow("empty") << QByteArray() << 0644 << QStringLiteral("it is empty");
        QTest::newRow("unreadable") << QByteArray() << 0000 << QStringLiteral("it cannot be read");
        QTest::newRow("a good recording") << QByteArray() << 0644 << QString();
    }

    void anOwnRecordingThatCannotPlayGivesWayToTheShippedOne()
    {
        QFETCH(QByteArray, content);
        QFETCH(int, mode);
        QFETCH(QString, why);
        QTemporaryDir data;
        QVERIFY(QDir(data.path()).mkpath(QStringLiteral("sounds")));
        const QString own = data.filePath(QStringLiteral("sounds/3.wav"));
        if (QTest::currentDataTag() == QByteArray("a good recording") || mode == 0) {
            // A real sound, the other melody: only its rights can keep it from playing.
            QVERIFY(QFile::copy(QStringLiteral(KAVENDA_RESOURCE_DIR "/7.wav"), own));
        } else {
            QFile file(own);
            QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
        }
        QVERIFY(::chmod(QFile::encodeName(own).constData(), static_cast<mode_t>(mode)) == 0);
        // Root reads every file: the player then runs as nobody, as a person's program would.
        const bool dropped = mode == 0 && ::geteuid() == 0;
        if (dropped) {
            ::chmod(QFile::encodeName(data.path()).constData(), 0755);
            QVERIFY(::setegid(65534) == 0 && ::seteuid(65534) == 0);
        }
        FixedPaths paths(data.path().toStdString(), KAVENDA_RESOURCE_DIR);
        test::RecordingAudioPlayer audio;
        test::RecordingLog log;
        ReminderSound sound(audio, paths, log, AudioModule::isPlayable);
        const NotificationRecord call{start, "Asia/Tehran", "اذان", "Ok", "3.wav", {}};
        QVERIFY(sound.play(call) != 0);
        sound.stop();
        QVERIFY(sound.play(call) != 0);
        if (dropped)
            QVERIFY(::seteuid(0) == 0 && ::setegid(0) == 0);
        const std::string heard = why.isEmpty() ? own.toStdString() : KAVENDA_RESOURCE_DIR "/3.wav";
        QCOMPARE(std::count(audio.calls.begin(), audio.calls.end(), "open " + heard), 2);
        QStringList told;
        for (const std::string& line : log.lines)
            if (line.find(own.toStdString()) != std::string::npos)
                told << QString::fromStdString(line);
        QCOMPARE(told.size(), why.isEmpty() ? 0 : 1);
        QVERIFY2(why.isEmpty() || told[0].contains(why), qPrintable(told.join(QLatin1Char('\n'))));
    }
};

}  // namespace kavenda

QTEST_MAIN(kavenda::ServicesTest)
#include "ServicesTest.moc"
