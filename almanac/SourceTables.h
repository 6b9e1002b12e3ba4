// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "almanac/HijriCalendar.h"

#include <string>
#include <string_view>
#include <vector>

namespace kavenda::almanac {

// A tab-separated source table: its header line dropped, every other line split into fields.
// The header names the table in error messages.
std::vector<std::vector<std::string>> readTable(std::string_view text, std::size_t columns);

struct Province {
    std::string name;
    std::string centre;
    double latitude;
    double longitude;
    double elevation;
};

std::vector<Province> readProvinces(std::string_view text);

// One occasion on a day given by a month and a day of some calendar.
struct Occasion {
    int month;
    int day;
    int holidaySince;  // the first solar year in which the day is a public holiday; 0: never
    std::string name;

    bool holidayIn(int persianYear) const { return holidaySince != 0 && persianYear >= holidaySince; }
};

// Columns: month, day, [skipped columns,] holiday, name. The holiday column is 0, 1 (a holiday
// in every year) or the solar year from which the day is a holiday.
std::vector<Occasion> readOccasions(std::string_view text, std::size_t skippedColumns = 0);

// Columns: Hijri year, Hijri month, Gregorian first day (YYYY-MM-DD), Persian first day, kind.
std::vector<HijriMonthStart> readHijriMonthStarts(std::string_view text);

}  // namespace kavenda::almanac
