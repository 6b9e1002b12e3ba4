#pragma once

#include <string_view>

namespace kavenda {

class Clock;
class HorizonKeeper;
class PersianCalendar;

// kavenda --month [YYYY-MM]: prints the Persian month (this month when none is given) from the
// shared database, coloured when stdout is a terminal; a year after the ones held is computed
// first. Returns the exit status.
int printMonth(std::string_view argument, const Clock& clock, const PersianCalendar& calendar, HorizonKeeper& horizon);
// kavenda --year [YYYY]: the whole Persian year as twelve months, likewise.
int printYear(std::string_view argument, const Clock& clock, const PersianCalendar& calendar, HorizonKeeper& horizon);

}  // namespace kavenda
