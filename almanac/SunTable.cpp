// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "almanac/SunTable.h"

#include <cmath>

namespace kavenda::almanac {

SunTable::Between SunTable::around(double jd)
{
    const double midnight = std::floor(jd - 0.5) + 0.5;
    const long day = std::lround(midnight + 0.5);
    const Midnight& from = atMidnight(day);
    return Between{from, atMidnight(day + 1), jd - midnight};
}

EquatorialPlace SunTable::place(double jd)
{
    const Between b = around(jd);
    double step = b.to.place.rightAscension - b.from.place.rightAscension;  // across 360 at the March equinox
    if (step < -180.0)
        step += 360.0;
    double rightAscension = b.from.place.rightAscension + b.fraction * step;
    if (rightAscension >= 360.0)
        rightAscension -= 360.0;
    return EquatorialPlace{rightAscension, std::lerp(b.from.place.declination, b.to.place.declination, b.fraction)};
}

SunPosition SunTable::position(double jd)
{
    const Between b = around(jd);
    return SunPosition{std::lerp(b.from.place.declination, b.to.place.declination, b.fraction),
                       std::lerp(b.from.equationOfTime, b.to.equationOfTime, b.fraction)};
}

const SunTable::Midnight& SunTable::atMidnight(long day)
{
    const auto found = days_.find(day);
    if (found != days_.end())
        return found->second;
    const double jd = static_cast<double>(day) - 0.5;
    const EquatorialPlace sun = apparentSun(jd);
    return days_.emplace(day, Midnight{sun, equationOfTime(jd, sun.rightAscension)}).first->second;
}

}  // namespace kavenda::almanac
