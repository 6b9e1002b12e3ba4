// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "screens/calendar/MonthShape.h"

#include "platform/PersianCalendar.h"

#include <chrono>

namespace kavenda {

namespace {

constexpr int gridRows = 5;
constexpr int gridColumns = 7;
constexpr int gridCells = gridRows * gridColumns;
constexpr int leapEsfandDay = 30;
constexpr int leapYearLength = 366;

// Saturday is the first column of the week.
int columnOfWeekday(std::chrono::weekday weekday)
{
    return static_cast<int>((weekday.c_encoding() + 1) % gridColumns);
}

}  // namespace

MonthShape MonthShape::of(const PersianCalendar& calendar, int year, int month)
{
    MonthShape shape;
    shape.year = year;
    shape.month = month;
    // Noon keeps the civil day clear of any shift at midnight.
    const CivilTime civil = calendar.gregorianFields(calendar.instantOf(year, month + 1, 1, 12, 0));
    const std::chrono::year_month_day first{std::chrono::year{civil.year},
                                            std::chrono::month{static_cast<unsigned>(civil.month)},
                                            std::chrono::day{static_cast<unsigned>(civil.day)}};
    shape.firstColumn = columnOfWeekday(std::chrono::weekday{std::chrono::sys_days{first}});
    if (month < 6)
        shape.length = 31;
    else if (month < 11)
        shape.length = 30;
    else
        shape.length = calendar.dayOfYear(year, 12, leapEsfandDay) == leapYearLength ? 30 : 29;
    return shape;
}

std::vector<GridPlace> placeDays(const MonthShape& shape)
{
    std::vector<GridPlace> places;
    // The value of the first cell; a cell holds d = first + 7r + k, its day when 1 <= d <= length.
    const int first = 1 - shape.firstColumn;
    for (int row = 0; row < gridRows; ++row)
        for (int column = 0; column < gridColumns; ++column) {
            const int d = first + gridColumns * row + column;
            if (d >= 1 && d <= shape.length)
                places.push_back({row, column, d});
            else if (d < 1 && d + gridCells <= shape.length)
                places.push_back({row, column, d + gridCells});
        }
    return places;
}

}  // namespace kavenda
