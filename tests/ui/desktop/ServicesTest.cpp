#include "desktop/AudioModule.h"
#include "desktop/LazyAudioPlayer.h"
#include "desktop/QtNotificationService.h"
#include "tests/support/FixedClock.h"

#include <QCryptographicHash>
#include <QFile>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>

namespace kavenda {
namespace {

const Instant start{std::chrono::seconds{1'372'665'600}};

NotificationRecord record(std::chrono::seconds after, const std::string& body)
{
    return {start + after, "Asia/Tehran", body, "Ok", "0.wav", {}};
}

std::uint32_t word(const QByteArray& bytes, int at)
{
    return qFromLittleEndian<quint32>(bytes.constData() + at);
}
std::uint16_t half(const QByteArray& bytes, int at)
{
    return qFromLittleEndian<quint16>(bytes.constData() + at);
}

}  // namespace

class ServicesTest : public QObject {
    Q_OBJECT

private slots:
    void deliversDueRecordsEarliestFirstAndKeepsTheRest()
    {
        FixedClock clock(start);
        QtNotificationService service(clock);
        std::vector<std::string> delivered;
        service.setDelivery([&delivered](const NotificationRecord& r) { delivered.push_back(r.alertBody); });
        service.schedule(record(std::chrono::seconds{120}, "sunset"));
        service.schedule(record(std::chrono::seconds{60}, "noon"));
        service.schedule(record(std::chrono::seconds{60}, "noon, second sound"));
        service.schedule(record(std::chrono::seconds{600}, "evening"));
        QCOMPARE(service.nextFireDate(), std::optional<Instant>(start + std::chrono::seconds{60}));

        clock.set(start + std::chrono::seconds{59});
        service.deliverDue();
        QVERIFY(delivered.empty());

        clock.set(start + std::chrono::seconds{120});
        service.deliverDue();
        QCOMPARE(delivered, (std::vector<std::string>{"noon", "noon, second sound", "sunset"}));
        QCOMPARE(service.pending().size(), std::size_t{1});
        QCOMPARE(service.pending().front().alertBody, std::string("evening"));
        QCOMPARE(service.nextFireDate(), std::optional<Instant>(start + std::chrono::seconds{600}));
    }

    void theTimerFiresAtTheMomentOfTheClock()
    {
        FixedClock clock(start);
        QtNotificationService service(clock);
        std::vector<std::string> delivered;
        service.setDelivery([&delivered](const NotificationRecord& r) { delivered.push_back(r.alertBody); });
        service.schedule(record(std::chrono::seconds{1}, "in a second"));
        service.schedule(record(std::chrono::seconds{0}, "now"));
        QTRY_COMPARE_WITH_TIMEOUT(delivered.size(), std::size_t{1}, 500);
        QCOMPARE(delivered.front(), std::string("now"));
        // The clock reaches the second record's moment; the timer set for it finds it due.
        clock.set(start + std::chrono::seconds{1});
        QTRY_COMPARE_WITH_TIMEOUT(delivered.size(), std::size_t{2}, 3000);
        QVERIFY(service.pending().empty());
    }

    void cancelAllStopsWhatWasAboutToFire()
    {
        FixedClock clock(start);
        QtNotificationService service(clock);
        int deliveries = 0;
        service.setDelivery([&deliveries](const NotificationRecord&) { ++deliveries; });
        service.schedule(record(std::chrono::seconds{0}, "now"));
        service.schedule(record(std::chrono::seconds{-30}, "missed"));
        service.cancelAll();
        QTest::qWait(100);
        QCOMPARE(deliveries, 0);
        QVERIFY(service.pending().empty());
        QCOMPARE(service.nextFireDate(), std::optional<Instant>());
    }

    void soundsAreDistinctMonoPcmWaves_data()
    {
        QTest::addColumn<QString>("name");
        for (const char* name : {"0.wav", "1.wav", "2.wav", "3.wav", "4.wav", "5.wav", "6.wav", "7.wav", "8.wav",
                                 "10.wav", "alarm.wav", "11.wav", "12.wav", "times.wav"})
            QTest::newRow(name) << QString::fromLatin1(name);
    }

    void soundsAreDistinctMonoPcmWaves()
    {
        QFETCH(QString, name);
        QFile file(QStringLiteral(KAVENDA_RESOURCE_DIR "/") + name);
        QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(name));
        const QByteArray bytes = file.readAll();
        QVERIFY(bytes.size() > 44);
        QCOMPARE(bytes.mid(0, 4), QByteArray("RIFF"));
        QCOMPARE(word(bytes, 4), static_cast<std::uint32_t>(bytes.size() - 8));
        QCOMPARE(bytes.mid(8, 8), QByteArray("WAVEfmt "));
        QCOMPARE(word(bytes, 16), 16u);
        QCOMPARE(half(bytes, 20), std::uint16_t{1});
        QCOMPARE(half(bytes, 22), std::uint16_t{1});
        const std::uint32_t rate = word(bytes, 24);
        QCOMPARE(word(bytes, 28), rate * 2);
        QCOMPARE(half(bytes, 32), std::uint16_t{2});
        QCOMPARE(half(bytes, 34), std::uint16_t{16});
        QCOMPARE(bytes.mid(36, 4), QByteArray("data"));
        QCOMPARE(word(bytes, 40), static_cast<std::uint32_t>(bytes.size() - 44));
        const double seconds = static_cast<double>(bytes.size() - 44) / (rate * 2);
        QVERIFY2(seconds > 0.3 && seconds < 8.0, qPrintable(QString::number(seconds)));
        int peak = 0;
        for (int at = 44; at + 1 < bytes.size(); at += 2)
            peak = std::max(peak, std::abs(static_cast<int>(qFromLittleEndian<qint16>(bytes.constData() + at))));
        QVERIFY2(peak > 16000 && peak < 32767, qPrintable(QString::number(peak)));
        const QByteArray digest = QCryptographicHash::hash(bytes.mid(44), QCryptographicHash::Sha1);
        QVERIFY2(!seen_.contains(digest), qPrintable(name + QStringLiteral(" sounds like another")));
        seen_.insert(digest);
    }

    // The multimedia module is loaded from the build tree on the first sound.
    void theAudioModuleTellsSoundsFromOtherFiles_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("playable");
        QTest::newRow("a shipped sound") << QStringLiteral("alarm.wav") << true;
        QTest::newRow("text named as a sound") << QStringLiteral("words.wav") << false;
        QTest::newRow("missing") << QStringLiteral("none.wav") << false;
    }

    void theAudioModuleTellsSoundsFromOtherFiles()
    {
        QFETCH(QString, name);
        QFETCH(bool, playable);
        QTemporaryDir folder;
        const QString sound = folder.filePath(QStringLiteral("alarm.wav"));
        QVERIFY(QFile::copy(QStringLiteral(KAVENDA_RESOURCE_DIR "/alarm.wav"), sound));
        QFile words(folder.filePath(QStringLiteral("words.wav")));
        QVERIFY(words.open(QIODevice::WriteOnly) && words.write(QByteArray(4096, 'a')) == 4096);
        words.close();
        const std::filesystem::path file = folder.filePath(name).toStdString();
        QCOMPARE(AudioModule::isPlayable(file), playable);
        LazyAudioPlayer audio;
        QVERIFY(!audio.isPlaying());
        // Opening reads no further than the file's being there.
        QCOMPARE(audio.open(file), name != QStringLiteral("none.wav"));
        audio.stop();
        QVERIFY(!audio.isPlaying());
    }

private:
    QSet<QByteArray> seen_;
};

}  // namespace kavenda

QTEST_MAIN(kavenda::ServicesTest)
#include "ServicesTest.moc"
