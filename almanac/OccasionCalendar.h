// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "almanac/DayCalendar.h"
#include "almanac/HijriCalendar.h"
#include "almanac/SourceTables.h"

#include <string>
#include <vector>

namespace kavenda::almanac {

struct DayEvents {
    std::vector<std::string> names;
    bool holiday = false;
};

// The occasions of a day: the official list for the year it has one, otherwise the fixed
// solar occasions, the lunar ones by the official Hijri months, and the Quds day.
class OccasionCalendar {
public:
    OccasionCalendar(int officialYear, std::vector<Occasion> official, std::vector<Occasion> solar,
                     std::vector<Occasion> lunar, HijriCalendar hijri);
    DayEvents on(const CalendarDay& day) const;

private:
    int officialYear_;
    std::vector<Occasion> official_;
    std::vector<Occasion> solar_;
    std::vector<Occasion> lunar_;
    HijriCalendar hijri_;
};

}  // namespace kavenda::almanac
