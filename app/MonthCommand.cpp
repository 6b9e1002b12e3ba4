#include "app/MonthCommand.h"

#include "app/HorizonKeeper.h"

#include "calendar/DateTimePersian.h"
#include "data/MyDB.h"
#include "screens/calendar/TerminalMonth.h"
#include "screens/calendar/TerminalYear.h"

#include <cstdio>
#include <string>
#include <unistd.h>

namespace kavenda {

int printMonth(std::string_view argument, const Clock& clock, const PersianCalendar& calendar, HorizonKeeper& horizon)
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
    horizon.holdThroughNow(month->year);
    const std::optional<std::string> printed =
        TerminalMonth(MyDB::initialize(), calendar).print(*month, isatty(fileno(stdout)) == 1);
    if (!printed) {
        std::fprintf(stderr, "kavenda: the calendar has no days of %04d-%02d\n", month->year, month->month);
        return 1;
    }
    std::fputs(printed->c_str(), stdout);
    return 0;
}

int printYear(std::string_view argument, const Clock& clock, const PersianCalendar& calendar, HorizonKeeper& horizon)
{
    const bool fourDigits = argument.size() == 4 && argument.find_first_not_of("0123456789") == std::string_view::npos;
    if (!argument.empty() && !fourDigits) {
        std::fprintf(stderr, "kavenda: --year wants a Persian year such as 1405, not %s\n",
                     std::string(argument).c_str());
        return 2;
    }
    const int year =
        argument.empty() ? DateTimePersian::init(clock, calendar).fullYear() : std::stoi(std::string(argument));
    horizon.holdThroughNow(year);
    const std::optional<std::string> printed =
        TerminalYear(MyDB::initialize(), calendar).print(year, isatty(fileno(stdout)) == 1);
    if (!printed) {
        std::fprintf(stderr, "kavenda: the calendar has no days of %04d\n", year);
        return 1;
    }
    std::fputs(printed->c_str(), stdout);
    return 0;
}

}  // namespace kavenda
