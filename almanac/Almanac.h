// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "almanac/HijriCalendar.h"
#include "almanac/SourceTables.h"
#include "almanac/SunTable.h"
#include "almanac/YearRows.h"

#include <vector>

namespace kavenda::almanac {

// The daily times of the province centres and the calendar of occasions, year by year, from
// the source tables compiled into the library. One object serves one thread.
class Almanac {
public:
    Almanac();

    const std::vector<Province>& provinces() const { return provinces_; }

    // Provinces are 1 to 31 in the order of the places table, their centres 32 to 62.
    static int provinceId(std::size_t index) { return static_cast<int>(index) + 1; }
    static int centreId(std::size_t index) { return static_cast<int>(index) + 1 + provinceCount; }

    YearRows year(int persianYear);

    static constexpr int provinceCount = 31;
    static constexpr int officialYear = 1392;  // the year whose printed calendar is the source
    static constexpr double iranStandardTime = 3.5;

private:
    std::vector<Province> provinces_;
    std::vector<Occasion> official_;
    std::vector<Occasion> solar_;
    std::vector<Occasion> lunar_;
    std::vector<HijriMonthStart> hijriTable_;
    SunTable sun_;
};

}  // namespace kavenda::almanac
