// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

// The kavenda command. The terminal commands are served here, with the core and SQLite
// alone; anything else loads the window module, and Qt with it.
#include "calendar/DateTimePersian.h"
#include "cli/CommandLine.h"
#include "cli/MonthCommand.h"
#include "cli/ReminderList.h"
#include "cli/StartClock.h"
#include "cli/TopUp.h"
#include "cli/WindowEntry.h"
#include "data/DataHorizon.h"
#include "data/IntValue.h"
#include "data/MyDB.h"
#include "data/Statements.h"
#include "data/WorkingCopyStart.h"
#include "desktop/DesktopPaths.h"
#include "desktop/DeviceRandom.h"
#include "desktop/InstanceSocket.h"
#include "desktop/JournalLog.h"
#include "desktop/StderrLog.h"
#include "desktop/SystemPersianCalendar.h"
#include "reminders/MyNotification.h"
#include "reminders/ReminderQueue.h"

#include <cstdio>
#include <dlfcn.h>
#include <memory>
#include <string>
#include <variant>

using namespace kavenda;

namespace {

// The window module: installed in the package's own library folder, in the build tree beside
// the command. Where neither is, the installed one is the one missing.
std::filesystem::path windowModule()
{
    const std::filesystem::path here = DesktopPaths::programFolder();
    const std::filesystem::path installed = (here / KAVENDA_INSTALLED_WINDOW).lexically_normal();
    const std::filesystem::path built = here / "kavenda_window.so";
    std::error_code error;
    return !std::filesystem::exists(installed, error) && std::filesystem::exists(built, error) ? built : installed;
}

// Loads Qt and the window in this process: no second program to start.
int openWindow(int argc, char** argv)
{
    const std::filesystem::path module = windowModule();
    void* loaded = ::dlopen(module.c_str(), RTLD_LAZY | RTLD_LOCAL);
    const auto entry =
        loaded ? reinterpret_cast<decltype(&kavenda_window_main)>(::dlsym(loaded, "kavenda_window_main")) : nullptr;
    if (!entry) {
        // The loader's reason names the file.
        const char* why = ::dlerror();
        const std::string reason = why ? why : module.string() + ": no window in it";
        std::fprintf(stderr, "kavenda: cannot open the window: %s; install the program again\n", reason.c_str());
        return 1;
    }
    return entry(argc, argv);
}

int printReminders(const Clock& clock, const PersianCalendar& calendar, const Paths& paths, Log& log)
{
    if (const auto problem = startWorkingCopy(paths, log)) {
        std::fprintf(stderr, "%s\n", problem->logLine.c_str());
        return 1;
    }
    ReminderQueue pending;
    DeviceRandom random;
    MyNotification::setUp(clock, calendar, pending, random, log);
    const int today = std::stoi(DateTimePersian::init(clock, calendar).getPersianDate());
    topUp(log, [&] { return DataHorizon(MyDB::initialize().dbPath()).keepAhead(today); });
    MyNotification::initialize().update();
    std::fputs(reminderList(pending.pending(), calendar).c_str(), stdout);
    // An empty list would otherwise read as a day without calls.
    if (intValue(MyDB::initialize().ExecuteScaler(sql::chosenCityCountUnnamed).value_or("0")) == 0)
        std::fputs("kavenda: no city is chosen, so nothing is announced; choose one in the options\n", stderr);
    return 0;
}

}  // namespace

int main(int argc, char** argv)
{
    const std::variant<CommandLine, std::string> parsed = CommandLine::parse(argc, argv);
    if (const std::string* problem = std::get_if<std::string>(&parsed)) {
        std::fprintf(stderr, "kavenda: %s\n", problem->c_str());
        return 1;
    }
    const CommandLine& line = std::get<CommandLine>(parsed);
    if (line.help) {
        std::fputs(CommandLine::helpText().c_str(), stdout);
        return 0;
    }
    if (line.version) {
        std::puts("kavenda " KAVENDA_VERSION);
        return 0;
    }
    const std::unique_ptr<Clock> clock = StartClock::make(line.now);
    if (!clock) {
        std::fprintf(stderr, "kavenda: --now wants a local date and time such as 2013-07-01T12:00\n");
        return 2;
    }
    if (!line.servedByTerminal())
        return openWindow(argc, argv);

    const DesktopPaths paths(line.dataDir, KAVENDA_INSTALLED_RESOURCES);
    if (line.quit) {
        if (sendToRunningInstance(paths.documentsFolder(), "quit"))
            return 0;
        std::fprintf(stderr, "kavenda: no Kavenda runs on %s\n", paths.documentsFolder().c_str());
        return 1;
    }
    SystemPersianCalendar calendar;
    // What a command prints is what the person asked for; the log goes beside it only when asked.
    std::unique_ptr<Log> log = line.verbose ? std::unique_ptr<Log>(std::make_unique<StderrLog>())
                                            : std::unique_ptr<Log>(std::make_unique<JournalLog>());
    if (line.reminders)
        return printReminders(*clock, calendar, paths, *log);
    if (line.month)
        return printMonth(line.positional, *clock, calendar, paths, *log);
    return printYear(line.positional, *clock, calendar, paths, *log);
}
