#include "app/AppDelegate.h"
#include "app/AppServices.h"
#include "app/HorizonKeeper.h"
#include "app/MonthCommand.h"
#include "app/PersianFont.h"
#include "app/PersianQtTexts.h"
#include "app/ReminderList.h"
#include "app/StartupFailure.h"
#include "app/TrayStatus.h"
#include "calendar/DateTimePersian.h"
#include "data/DataFolderCheck.h"
#include "data/DataFolderLock.h"
#include "data/DatabaseCheck.h"
#include "data/IntValue.h"
#include "data/MyDB.h"
#include "data/Statements.h"
#include "desktop/AudioModule.h"
#include "desktop/DesktopNotifier.h"
#include "desktop/DesktopPaths.h"
#include "desktop/DesktopUrlOpener.h"
#include "desktop/DeviceRandom.h"
#include "desktop/FixedScreen.h"
#include "desktop/IcuPersianCalendar.h"
#include "desktop/LazyAudioPlayer.h"
#include "desktop/MessageBoxAlerts.h"
#include "desktop/QtNotificationService.h"
#include "desktop/Replanning.h"
#include "desktop/ShiftedClock.h"
#include "desktop/SingleInstance.h"
#include "desktop/TerminationSignals.h"
#include "desktop/StderrLog.h"
#include "desktop/SystemClock.h"
#include "reminders/MyNotification.h"
#include "reminders/ReminderSound.h"
#include "screens/main/MainViewController.h"
#include "widgets/EnterPressesButtons.h"
#include "widgets/FocusRingStyle.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDateTime>
#include <QIcon>
#include <QImageReader>
#include <QMessageBox>
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
        if (argument == "--reminders" || argument == "--month" || argument == "--year" || argument == "--help"
            || argument == "-h" || argument == "--help-all" || argument == "--version" || argument == "-v"
            || argument == "--quit")
            return false;
    }
    return true;
}

// An icon decoded when first drawn: QIcon(file) decodes the whole image before the first frame.
QIcon iconOnDemand(const QString& file)
{
    QIcon icon;
    icon.addFile(file, QImageReader(file).size());
    return icon;
}

// A first start that could not make its folder's working copy leaves nothing behind: neither
// the lock file nor the folder, when it made the folder.
void takeBackFirstStart(const std::filesystem::path& folder, bool folderExisted)
{
    std::error_code ignored;
    std::filesystem::remove(folder / DataFolderLock::fileName, ignored);
    if (!folderExisted)
        std::filesystem::remove(folder, ignored);
}

}  // namespace

int main(int argc, char** argv)
{
    std::unique_ptr<QCoreApplication> app = needsWindow(argc, argv) ? std::make_unique<QApplication>(argc, argv)
                                                                    : std::make_unique<QCoreApplication>(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("kavenda"));
    QCoreApplication::setApplicationVersion(QStringLiteral(KAVENDA_VERSION));

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Kavenda: the Persian calendar and the religious times of your cities."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption now(
        QStringLiteral("now"),
        QStringLiteral("Set the device clock to a local date and time, such as 2013-07-01T12:00."),
        QStringLiteral("time"));
    const QCommandLineOption tall(QStringLiteral("tall"),
                                  QStringLiteral("A tall screen: 320 x 548 instead of 320 x 460."));
    const QCommandLineOption dataDir(
        QStringLiteral("data-dir"),
        QStringLiteral("The folder of the working database (default: the XDG data folder)."), QStringLiteral("folder"));
    const QCommandLineOption screenshot(
        QStringLiteral("screenshot"),
        QStringLiteral("Start, let the first screen settle, write a PNG of the window to the file and exit."),
        QStringLiteral("file"));
    const QCommandLineOption reminders(
        QStringLiteral("reminders"),
        QStringLiteral("Rebuild the reminders as a start does, print the pending ones in fire order and exit."));
    const QCommandLineOption month(
        QStringLiteral("month"),
        QStringLiteral(
            "Print a Persian month with its holidays and occasions (this month unless YYYY-MM is given) and exit."));
    const QCommandLineOption year(
        QStringLiteral("year"),
        QStringLiteral(
            "Print a Persian year as twelve months with their holidays (this year unless YYYY is given) and exit."));
    const QCommandLineOption background(QStringLiteral("background"),
                                        QStringLiteral("Start in the system tray without showing the window."));
    const QCommandLineOption quit(QStringLiteral("quit"),
                                  QStringLiteral("End the program running on the data folder."));
    parser.addOptions({now, tall, dataDir, screenshot, reminders, month, year, background, quit});
    parser.addPositionalArgument(
        QStringLiteral("YYYY-MM"),
        QStringLiteral(
            "With --month: the Persian year and month, such as 1392-01; with --year: the year, such as 1405."),
        QStringLiteral("[YYYY-MM|YYYY]"));
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
    if (parser.isSet(quit)) {
        if (sendToRunningInstance(paths.documentsFolder(), "quit"))
            return 0;
        std::fprintf(stderr, "kavenda: no Kavenda runs on %s\n", paths.documentsFolder().c_str());
        return 1;
    }
    StderrLog log;
    QtNotificationService notifications(*clock);
    DeviceRandom random;
    LazyAudioPlayer audio;
    DesktopUrlOpener urls;
    MessageBoxAlerts alerts;
    FixedScreen screen(parser.isSet(tall));
    const AppServices services{clock.get(), &calendar, &paths, &log,    &notifications,
                               &random,     &audio,    &urls,  &alerts, &screen};
    // The shipped file is checked before the working copy is made from it.
    if (const auto problem = shippedDatabaseProblem(paths.resourceFolder() / "Icons"))
        return reportStartupProblem(*problem, log);
    std::error_code absent;
    const bool folderExisted = std::filesystem::exists(paths.documentsFolder(), absent);
    if (const auto problem = dataFolderProblem(paths.documentsFolder()))
        return reportStartupProblem(*problem, log);
    MyDB::setUp(paths, log);
    if (const std::error_code copyError = MyDB::initialize().copyError()) {
        takeBackFirstStart(paths.documentsFolder(), folderExisted);
        return reportStartupProblem(copyProblem(paths.documentsFolder(), copyError), log);
    }
    if (const auto problem = workingCopyProblem(MyDB::initialize().dbPath()))
        return reportStartupProblem(*problem, log);
    MyNotification::setUp(*clock, calendar, notifications, random, log);
    // The working copy holds the coming years as well: computed when fewer than 400 days lie ahead.
    HorizonKeeper horizon(MyDB::initialize().dbPath(), log);
    const auto todayKey = [&] { return std::stoi(DateTimePersian::init(*clock, calendar).getPersianDate()); };

    if (parser.isSet(reminders)) {
        horizon.keepAheadNow(todayKey());
        MyNotification::initialize().update();
        std::fputs(reminderList(notifications.pending(), calendar).c_str(), stdout);
        // An empty list would otherwise read as a day without calls.
        if (intValue(MyDB::initialize().ExecuteScaler(sql::chosenCityCountUnnamed).value_or("0")) == 0)
            std::fputs("kavenda: no city is chosen, so nothing is announced; choose one in the options\n", stderr);
        return 0;
    }
    if (parser.isSet(month))
        return printMonth(parser.positionalArguments().value(0).toStdString(), *clock, calendar, horizon);
    if (parser.isSet(year))
        return printYear(parser.positionalArguments().value(0).toStdString(), *clock, calendar, horizon);

    // One program per data folder; a screenshot runs beside it.
    SingleInstance instance(paths.documentsFolder());
    if (!parser.isSet(screenshot)) {
        if (instance.handOver(parser.isSet(background)))
            return 0;
        if (!instance.listen()) {
            // Another start may have begun listening since the first try.
            if (instance.handOver(parser.isSet(background)))
                return 0;
            log.line("cannot watch for a second start; it would run beside this one");
        }
    }

    usePersianFont();
    QApplication::setStyle(new FocusRingStyle);
    app->installEventFilter(new EnterPressesButtons(app.get()));
    usePersianQtTexts();
    QApplication::setApplicationDisplayName(QStringLiteral("کاوندا"));
    // Wayland docks match the window to the menu entry by this name.
    QApplication::setDesktopFileName(QStringLiteral(KAVENDA_APP_ID));
    const QString icon = QString::fromStdString((paths.resourceFolder() / "kavenda.png").string());
    QApplication::setWindowIcon(iconOnDemand(icon));

    ReminderSound sound(audio, paths, log, AudioModule::isPlayable);
    DesktopNotifier notifier(sound, paths);
    AppDelegate delegate(services, [&notifier](const NotificationRecord& record) { notifier.notify(record); });
    delegate.setStartsInBackground(parser.isSet(background));
    delegate.setTellRunsInBackground([&notifier](std::function<void()> quitProgram) {
        notifier.notice(
            QStringLiteral(
                "کاوندا در پس‌زمینه می‌ماند تا وقت‌های اذان و یادآوری‌ها را اعلام کند."),
            QStringLiteral("خروج"), std::move(quitProgram));
    });
    delegate.didFinishLaunchingWithOptions();
    alerts.setParent(delegate.window());
    notifier.setTray(delegate.tray());
    QObject::connect(&instance, &SingleInstance::showRequested, &delegate, &AppDelegate::showWindow);
    QObject::connect(&instance, &SingleInstance::quitRequested, &delegate, &AppDelegate::quit);
    QObject::connect(new TerminationSignals(&delegate), &TerminationSignals::received, &delegate, &AppDelegate::quit);

    // A page of today moves on to the new day and shows the years just added; a day the person
    // picked stays.
    std::string today = DateTimePersian::init(*clock, calendar).getPersianDate();
    const auto refreshToday = [&] {
        MainViewController* root = delegate.rootViewController();
        if (root->localDtp().getPersianDate() == today)
            root->refresh();
        today = DateTimePersian::init(*clock, calendar).getPersianDate();
    };

    if (parser.isSet(screenshot)) {
        const QString file = parser.value(screenshot);
        // The first screen has settled when the coming years it may show are there too.
        QObject::connect(&horizon, &HorizonKeeper::yearsAdded, &delegate, refreshToday);
        QObject::connect(&horizon, &HorizonKeeper::settled, &delegate, [&delegate, file] {
            QTimer::singleShot(settleMilliseconds, &delegate, [&delegate, file] {
                const bool saved = delegate.window()->grab().save(file, "PNG");
                if (!saved)
                    std::fprintf(stderr, "kavenda: cannot write %s\n", qPrintable(file));
                QCoreApplication::exit(saved ? 0 : 1);
            });
        });
        horizon.keepAhead(todayKey());
        // Beside a running program: nothing is announced from here.
        return app->exec();
    }

    // The tray's tooltip and menu; made when a tray appears where there was none at start.
    std::unique_ptr<TrayStatus> status;
    const auto makeStatus = [&] {
        status = std::make_unique<TrayStatus>(delegate.tray(), sound, notifications, *clock, calendar);
        notifier.setTray(delegate.tray());
        status->refresh();
    };
    if (delegate.tray())
        makeStatus();
    QObject::connect(&delegate, &AppDelegate::trayAppeared, &delegate, makeStatus);
    notifications.setDelivery([&](const NotificationRecord& record) {
        const int ticket = sound.play(record);
        const QMessageBox* before = alerts.current();
        delegate.didReceiveLocalNotification(record);
        // The alert's button stops the sound of its own reminder.
        if (QMessageBox* box = alerts.current(); box && box != before)
            QObject::connect(box, &QDialog::finished, box, [&sound, ticket] { sound.stop(ticket); });
        if (status)
            status->refresh();
    });
    const auto catchUp = [&] {
        MyNotification::initialize().update();
        refreshToday();
        if (status)
            status->refresh();
    };
    QObject::connect(&horizon, &HorizonKeeper::yearsAdded, &delegate, catchUp);
    Replanning replanning(
        *clock, calendar, log, [&notifications] { notifications.deliverDue(); },
        [&](ReplanWatch::Change) {
            catchUp();
            horizon.keepAhead(todayKey());
        });
    // The minutes left in the tooltip change with the re-planning's minute, on the same wake-up.
    QObject::connect(&replanning, &Replanning::minuteBegan, &delegate, [&] {
        if (status)
            status->refresh();
    });
    horizon.keepAhead(todayKey());

    return app->exec();
}
