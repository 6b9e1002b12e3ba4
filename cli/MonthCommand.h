// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string_view>

namespace kavenda {

class Clock;
class Log;
class Paths;
class PersianCalendar;

// kavenda --month [YYYY-MM]: prints the Persian month (this month when none is given), coloured
// when stdout is a terminal. A year past the ones held is computed first. Before the first
// start, the shipped data is read from a temporary copy: a look at the calendar creates nothing
// in the data folder. Returns the exit status.
int printMonth(std::string_view argument, const Clock& clock, const PersianCalendar& calendar, const Paths& paths,
               Log& log);
// kavenda --year [YYYY]: the whole Persian year as twelve months, likewise.
int printYear(std::string_view argument, const Clock& clock, const PersianCalendar& calendar, const Paths& paths,
              Log& log);

}  // namespace kavenda
