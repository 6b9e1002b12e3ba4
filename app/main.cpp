#include "app/AppDelegate.h"
#include "app/PersianFont.h"
#include "app/ReminderList.h"
#include "app/StartupFailure.h"
#include "data/DatabaseCheck.h"
#include "data/MyDB.h"
#include "platform/DeviceRandom.h"
#include "platform/FixedScreen.h"
#include "platform/IcuPersianCalendar.h"
#include "platform/StderrLog.h"
#include "platform/ShiftedClock.h"
#include "platform/SystemClock.h"
#include "platform/qt/DesktopNotifier.h"
#include "platform/qt/DesktopPaths.h"
#include "platform/qt/DesktopUrlOpener.h"
#include "platform/qt/MessageBoxAlerts.h"
#include "platform/qt/QtAudioPlayer.h"
#include "platform/qt/QtNotificationService.h"
#include "reminders/MyNotification.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDateTime>
#include <QIcon>
#include <QTimer>
#include <QWidget>

#include <cstdio>
#include <memory>
#include <optional>

using namespace kavenda;

namespace {

// Long enough for the first screen, and the options' flip on a first start, to finish.
constexpr int settleMilliseconds = 600;

// What needs no window: these run on a plain core application, without a display.
bool needsWindow(int argc, char** argv)
{
    for (int i = 1; i < argc; ++i) {
        const QByteArray argument(argv[i]);
        if (argument == "--reminders" || argument == "--help" || argument == "-h" || argument == "--help-all"
            || argument == "--version" || argument == "-v")
            return false;
    }
    return true;
}

}  // namespace

int main(int argc, char** argv)
{
    std::unique_ptr<QCoreApplication> app = needsWindow(argc, argv)
        ? std::make_unique<QApplication>(argc, argv)
        : std::make_unique<QCoreApplication>(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("kavenda"));
    QCoreApplication::setApplicationVersion(QStringLiteral(KAVENDA_VERSION));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Kavenda: the Persian calendar and the religious times of your cities."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption now(QStringLiteral("now"), QStringLiteral("Set the device clock to a local date and time, such as 2013-07-01T12:00."), QStringLiteral("time"));
    const QCommandLineOption tall(QStringLiteral("tall"), QStringLiteral("A tall screen: 320 x 548 instead of 320 x 460."));
    const QCommandLineOption dataDir(QStringLiteral("data-dir"), QStringLiteral("The folder of the working database (default: the XDG data folder)."), QStringLiteral("folder"));
    const QCommandLineOption screenshot(QStringLiteral("screenshot"), QStringLiteral("Start, let the first screen settle, write a PNG of the window to the file and exit."), QStringLiteral("file"));
    const QCommandLineOption reminders(QStringLiteral("reminders"), QStringLiteral("Rebuild the reminders as a start does, print the pending ones in fire order and exit."));
    parser.addOptions({now, tall, dataDir, screenshot, reminders});
    parser.process(*app);

    SystemClock systemClock;
    std::unique_ptr<Clock> clock;
    if (parser.isSet(now)) {
        const QDateTime start = QDateTime::fromString(parser.value(now), Qt::ISODate);
        if (!start.isValid()) {
            std::fprintf(stderr, "kavenda: --now wants a local date and time such as 2013-07-01T12:00\n");
            return 2;
        }
        clock = std::make_unique<ShiftedClock>(Instant(std::chrono::seconds(start.toSecsSinceEpoch())), systemClock);
    } else {
        clock = std::make_unique<SystemClock>();
    }

    IcuPersianCalendar calendar;
    DesktopPaths paths(parser.isSet(dataDir) ? std::optional<std::filesystem::path>(parser.value(dataDir).toStdString())
                                             : std::nullopt);
    StderrLog log;
    QtNotificationService notifications(*clock);
    DeviceRandom random;
    QtAudioPlayer audio;
    DesktopUrlOpener urls;
    MessageBoxAlerts alerts;
    FixedScreen screen(parser.isSet(tall));
    Platform::install({clock.get(), &calendar, &paths, &log, &notifications, &random, &audio, &urls, &alerts, &screen});
    if (const auto problem = openSharedDatabase())
        return reportStartupProblem(*problem, log);

    if (parser.isSet(reminders)) {
        MyDB::initialize();
        MyNotification::initialize().update();
        std::fputs(reminderList(notifications.pending(), calendar).c_str(), stdout);
        return 0;
    }

    usePersianFont();
    QApplication::setApplicationDisplayName(QStringLiteral("Kavenda"));
    QApplication::setWindowIcon(QIcon(QString::fromStdString((paths.resourceFolder() / "kavenda.png").string())));

    DesktopNotifier notifier(audio, paths);
    AppDelegate delegate(Platform::installed(), [&notifier](const NotificationRecord& record) { notifier.notify(record); });
    notifications.setDelivery([&delegate](const NotificationRecord& record) { delegate.didReceiveLocalNotification(record); });
    delegate.didFinishLaunchingWithOptions();
    alerts.setParent(delegate.window());
    notifier.setTray(delegate.tray());

    if (parser.isSet(screenshot)) {
        const QString file = parser.value(screenshot);
        QTimer::singleShot(settleMilliseconds, &delegate, [&delegate, file] {
            const bool saved = delegate.window()->grab().save(file, "PNG");
            if (!saved)
                std::fprintf(stderr, "kavenda: cannot write %s\n", qPrintable(file));
            QCoreApplication::exit(saved ? 0 : 1);
        });
    }
    return app->exec();
}
