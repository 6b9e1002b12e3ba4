// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/AppDelegate.h"
#include "app/AppServices.h"
#include "app/AppTexts.h"
#include "app/HorizonKeeper.h"
#include "app/PersianFont.h"
#include "app/PersianQtTexts.h"
#include "app/StartupFailure.h"
#include "app/TrayStatus.h"
#include "calendar/DateTimePersian.h"
#include "cli/CommandLine.h"
#include "cli/StartClock.h"
#include "cli/WindowEntry.h"
#include "data/MyDB.h"
#include "data/WorkingCopyStart.h"
#include "desktop/AudioModule.h"
#include "desktop/DesktopNotifier.h"
#include "desktop/DesktopPaths.h"
#include "desktop/DesktopUrlOpener.h"
#include "desktop/DeviceRandom.h"
#include "desktop/FixedScreen.h"
#include "desktop/LazyAudioPlayer.h"
#include "desktop/MessageBoxAlerts.h"
#include "desktop/QtNotificationService.h"
#include "desktop/Replanning.h"
#include "desktop/SingleInstance.h"
#include "desktop/StderrLog.h"
#include "desktop/SystemPersianCalendar.h"
#include "desktop/TerminationSignals.h"
#include "reminders/MyNotification.h"
#include "reminders/ReminderSound.h"
#include "screens/main/CustomUIImageView.h"
#include "screens/main/MainViewController.h"
#include "widgets/EnterPressesButtons.h"
#include "widgets/FocusRingStyle.h"

#include <QApplication>
#include <QMessageBox>
#include <QTimer>
#include <QWidget>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <future>
#include <malloc.h>
#include <memory>
#include <string>
#include <unistd.h>
#include <variant>
#include <vector>

using namespace kavenda;

namespace {

// Long enough for the first screen, and the options' flip on a first start, to finish.
constexpr int settleMilliseconds = 600;

// Where neither a display nor a platform is named, Qt would abort; one line says why instead.
bool canOpenWindow(const std::vector<char*>& qtArguments)
{
    const auto named = [](const char* variable) {
        const char* value = std::getenv(variable);
        return value && *value;
    };
    const bool platformGiven = std::any_of(qtArguments.begin(), qtArguments.end(), [](const char* argument) {
        return argument && (std::strcmp(argument, "-platform") == 0 || std::strcmp(argument, "--platform") == 0);
    });
    return platformGiven || named("QT_QPA_PLATFORM") || named("DISPLAY") || named("WAYLAND_DISPLAY");
}

// The window's life; `restart` is set when it ended to start again in the background.
int runWindow(int argc, char** argv, bool& restart)
{
    // The kavenda command checked the options before it loaded this module.
    const std::variant<CommandLine, std::string> parsed = CommandLine::parse(argc, argv);
    const CommandLine* line = std::get_if<CommandLine>(&parsed);
    if (!line) {
        std::fprintf(stderr, "kavenda: %s\n", std::get<std::string>(parsed).c_str());
        return 1;
    }
    const std::unique_ptr<Clock> clock = StartClock::make(line->now);
    if (!clock) {
        std::fprintf(stderr, "kavenda: --now wants a local date and time such as 2013-07-01T12:00\n");
        return 2;
    }
    // Qt's own options (-platform, -style...) are read by QApplication; the others are ours.
    std::vector<char*> qtArguments{argv[0]};
    for (const std::string& argument : line->qtArguments)
        qtArguments.push_back(const_cast<char*>(argument.c_str()));
    int qtArgumentCount = static_cast<int>(qtArguments.size());
    qtArguments.push_back(nullptr);
    if (!canOpenWindow(qtArguments)) {
        std::fprintf(stderr, "kavenda: no display to open the window on (set DISPLAY or WAYLAND_DISPLAY)\n");
        return 1;
    }
    // What the first frame needs and Qt does not is read on other cores while Qt starts: the font
    // configuration, and the main page's background.
    std::future<void> fontConfiguration = std::async(std::launch::async, readFontConfiguration);
    DesktopPaths paths(line->dataDir, KAVENDA_INSTALLED_RESOURCES);
    if (!line->background)
        CustomUIImageView::prefetchBackground(paths.resourceFolder());
    QApplication app(qtArgumentCount, qtArguments.data());
    QCoreApplication::setApplicationName(QStringLiteral("kavenda"));
    QCoreApplication::setApplicationVersion(QStringLiteral(KAVENDA_VERSION));

    SystemPersianCalendar calendar;
    StderrLog log;
    QtNotificationService notifications(*clock);
    DeviceRandom random;
    LazyAudioPlayer audio;
    DesktopUrlOpener urls;
    MessageBoxAlerts alerts;
    FixedScreen screen(line->tall);
    const AppServices services{clock.get(), &calendar, &paths,  &log,    &notifications,         &random,
                               &audio,      &urls,     &alerts, &screen, AudioModule::isPlayable};
    if (const auto problem = startWorkingCopy(paths, log)) {
        // Its message box reads fonts too.
        fontConfiguration.wait();
        return reportStartupProblem(*problem, log);
    }
    MyNotification::setUp(*clock, calendar, notifications, random, log);
    // The working copy holds the coming years as well: computed when fewer than 400 days lie ahead.
    HorizonKeeper horizon(MyDB::initialize().dbPath(), log);
    const auto todayKey = [&] { return std::stoi(DateTimePersian::init(*clock, calendar).getPersianDate()); };

    // One program per data folder; a screenshot runs beside it.
    SingleInstance instance(paths.documentsFolder());
    if (!line->screenshot) {
        if (instance.handOver(line->background))
            return 0;
        if (!instance.listen()) {
            // Another start may have begun listening since the first try.
            if (instance.handOver(line->background))
                return 0;
            log.line("cannot watch for a second start; it would run beside this one");
        }
    }

    fontConfiguration.wait();
    usePersianFont();
    QApplication::setStyle(new FocusRingStyle);
    app.installEventFilter(new EnterPressesButtons(&app));
    usePersianQtTexts();
    QApplication::setApplicationDisplayName(texts::app::displayName);
    // Wayland docks match the window to the menu entry by this name.
    QApplication::setDesktopFileName(QStringLiteral(KAVENDA_APP_ID));

    ReminderSound sound(audio, paths, log, services.isPlayable);
    DesktopNotifier notifier(sound, paths);
    AppDelegate delegate(services, [&notifier](const NotificationRecord& record) { notifier.notify(record); });
    delegate.setStartsInBackground(line->background);
    delegate.setIconFile(QString::fromStdString((paths.resourceFolder() / "kavenda.png").string()));
    delegate.setTellRunsInBackground([&notifier](std::function<void()> quitProgram) {
        notifier.notice(texts::app::staysInBackground, texts::app::quit, std::move(quitProgram));
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

    // The coming years are computed once the window is up; nothing on it waits for them.
    QObject::connect(&delegate, &AppDelegate::launchFinished, &horizon, [&] { horizon.keepAhead(todayKey()); });

    if (line->screenshot) {
        const QString file = QString::fromStdString(*line->screenshot);
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
        // Beside a running program: nothing is announced from here.
        return app.exec();
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
    // The watch on the clock, the zone and the sleeps joins the system bus: once the window is up.
    std::unique_ptr<Replanning> replanning;
    QObject::connect(&delegate, &AppDelegate::launchFinished, &delegate, [&] {
        replanning = std::make_unique<Replanning>(
            *clock, calendar, log, [&notifications] { notifications.deliverDue(); },
            [&](ReplanWatch::Change) {
                catchUp();
                horizon.keepAhead(todayKey());
            });
        // The minutes left in the tooltip change with the re-planning's minute, on the same wake-up.
        QObject::connect(replanning.get(), &Replanning::minuteBegan, &delegate, [&] {
            if (status)
                status->refresh();
        });
    });

    const int exitStatus = app.exec();
    restart = delegate.restartsForTray();
    return exitStatus;
}

}  // namespace

int kavenda_window_main(int argc, char** argv)
{
    // One allocation arena for the window's thread and one for the others: the font configuration,
    // read beside Qt's start, allocates as much as Qt does then, and a shared arena would make each
    // wait for the other. The later threads (the data horizon's, Qt's and GLib's) allocate little;
    // an arena each would cost half a megabyte of a window that needs thirty.
    mallopt(M_ARENA_MAX, 2);
    bool restart = false;
    const int status = runWindow(argc, argv, restart);
    if (!restart)
        return status;
    // Everything of the first life is closed and removed by now: its socket, its files, its locks.
    std::vector<char*> arguments(argv, argv + argc);
    char background[] = "--background";
    if (std::none_of(arguments.begin(), arguments.end(),
                     [](const char* a) { return std::strcmp(a, "--background") == 0; }))
        arguments.push_back(background);
    arguments.push_back(nullptr);
    ::execv("/proc/self/exe", arguments.data());
    std::fprintf(stderr, "kavenda: cannot start again for the tray: %s\n", std::strerror(errno));
    return 1;
}
