// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/MonthCommand.h"

#include "cli/TopUp.h"

#include "calendar/DateTimePersian.h"
#include "data/DataHorizon.h"
#include "data/MyDB.h"
#include "platform/Log.h"
#include "platform/Paths.h"
#include "screens/calendar/TerminalMonth.h"
#include "screens/calendar/TerminalYear.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <unistd.h>

namespace kavenda {

namespace {

namespace fs = std::filesystem;

using Printout = std::function<std::optional<std::string>(MyDB&)>;

// A folder of its own under the temporary folder, removed with everything in it.
class TemporaryPaths final : public Paths {
public:
    explicit TemporaryPaths(const Paths& program) : resources_(program.resourceFolder())
    {
        std::error_code error;
        std::string pattern = (fs::temp_directory_path(error) / "kavenda-XXXXXX").string();
        if (::mkdtemp(pattern.data()))
            folder_ = pattern;
    }
    ~TemporaryPaths() override
    {
        std::error_code ignored;
        if (!folder_.empty())
            fs::remove_all(folder_, ignored);
    }
    TemporaryPaths(const TemporaryPaths&) = delete;
    TemporaryPaths& operator=(const TemporaryPaths&) = delete;

    fs::path documentsFolder() const override { return folder_; }
    fs::path resourceFolder() const override { return resources_; }

private:
    fs::path resources_;
    fs::path folder_;
};

std::optional<std::string> printedHolding(int year, const Paths& paths, Log& log, const Printout& print)
{
    std::error_code absent;
    const bool started =
        !paths.documentsFolder().empty() && fs::exists(paths.documentsFolder() / MyDB::sharedFileName, absent);
    std::optional<TemporaryPaths> temporary;
    if (!started)
        temporary.emplace(paths);
    MyDB db(std::string(MyDB::sharedFileName), started ? paths : *temporary, log);
    if (std::optional<std::string> text = print(db))
        return text;
    topUp(log, [&] { return DataHorizon(db.dbPath()).holdThrough(year); });
    return print(db);
}

int printed(const std::optional<std::string>& text, const char* missing)
{
    if (!text) {
        std::fprintf(stderr, "kavenda: the calendar has no days of %s\n", missing);
        return 1;
    }
    std::fputs(text->c_str(), stdout);
    return 0;
}

bool colourful()
{
    return isatty(fileno(stdout)) == 1;
}

}  // namespace

int printMonth(std::string_view argument, const Clock& clock, const PersianCalendar& calendar, const Paths& paths,
               Log& log)
{
    std::optional<TerminalMonth::YearMonth> month;
    if (argument.empty()) {
        const DateTimePersian today = DateTimePersian::init(clock, calendar);
        month = TerminalMonth::YearMonth{today.fullYear(), today.month()};
    } else {
        month = TerminalMonth::parse(argument);
    }
    if (!month) {
        std::fprintf(stderr, "kavenda: --month wants a Persian year and month such as 1392-01, not %s\n",
                     std::string(argument).c_str());
        return 2;
    }
    char name[16];
    std::snprintf(name, sizeof name, "%04d-%02d", month->year, month->month);
    return printed(printedHolding(month->year, paths, log,
                                  [&](MyDB& db) { return TerminalMonth(db, calendar).print(*month, colourful()); }),
                   name);
}

int printYear(std::string_view argument, const Clock& clock, const PersianCalendar& calendar, const Paths& paths,
              Log& log)
{
    const bool fourDigits = argument.size() == 4 && argument.find_first_not_of("0123456789") == std::string_view::npos;
    if (!argument.empty() && !fourDigits) {
        std::fprintf(stderr, "kavenda: --year wants a Persian year such as 1405, not %s\n",
                     std::string(argument).c_str());
        return 2;
    }
    const int year =
        argument.empty() ? DateTimePersian::init(clock, calendar).fullYear() : std::stoi(std::string(argument));
    const std::string name = std::to_string(year);
    return printed(
        printedHolding(year, paths, log, [&](MyDB& db) { return TerminalYear(db, calendar).print(year, colourful()); }),
        name.c_str());
}

}  // namespace kavenda
