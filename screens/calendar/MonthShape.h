// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <vector>

namespace kavenda {

class PersianCalendar;

// One month of one Persian year as the grid needs it: the column of its first day (0 =
// Saturday .. 6 = Friday) and its number of days.
struct MonthShape {
    int year = 0;
    int month = 0;  // 0 = Farvardin .. 11 = Esfand
    int firstColumn = 0;
    int length = 0;

    // The shape by the platform's Persian calendar; the year is the full year (1392).
    static MonthShape of(const PersianCalendar& calendar, int year, int month);
};

// A place in the five-row grid: row 0 to 4, column 0 (Saturday, rightmost) to 6 (Friday).
struct GridPlace {
    int row = 0;
    int column = 0;
    int day = 0;
    bool operator==(const GridPlace&) const = default;
};

// Every day of the month once, row by row and Saturday first. The grid has five rows; a month
// that needs a sixth puts its last days into the empty leading cells of the first row.
std::vector<GridPlace> placeDays(const MonthShape& shape);

}  // namespace kavenda
