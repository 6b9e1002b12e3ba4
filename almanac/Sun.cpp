// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "almanac/Sun.h"

#include <libnova/dynamical_time.h>
#include <libnova/nutation.h>
#include <libnova/precession.h>
#include <libnova/sidereal_time.h>
#include <libnova/solar.h>

#include <cmath>
#include <numbers>

namespace kavenda::almanac {

namespace {

constexpr double degree = std::numbers::pi / 180.0;
constexpr double epochJ2000 = 2451545.0;

}  // namespace

double julianDay(int year, int month, int day)
{
    if (month <= 2) {
        year -= 1;
        month += 12;
    }
    const int century = year / 100;
    const int gregorian = 2 - century + century / 4;
    return std::floor(365.25 * (year + 4716)) + std::floor(30.6001 * (month + 1)) + day + gregorian - 1524.5;
}

double dynamicalTime(double jd)
{
    return ln_get_jde(jd);
}

void forgetNutation(double jd)
{
    ln_nutation elsewhere{};
    ln_get_nutation(jd + 1.0, &elsewhere);
}

EquatorialPlace placeOfDate(EquatorialPlace j2000, double jd)
{
    ln_equ_posn from{j2000.rightAscension, j2000.declination}, to{};
    ln_get_equ_prec2(&from, epochJ2000, dynamicalTime(jd), &to);
    return EquatorialPlace{to.ra, to.dec};
}

EquatorialPlace apparentSun(double jd)
{
    forgetNutation(jd);
    ln_equ_posn j2000{};
    ln_get_solar_equ_coords(dynamicalTime(jd), &j2000);
    return placeOfDate({j2000.ra, j2000.dec}, jd);
}

double equationOfTime(double jd, double rightAscension)
{
    const double universalHours = std::fmod(jd + 0.5, 1.0) * 24.0;
    const double hourAngle = ln_get_apparent_sidereal_time(jd) - rightAscension / 15.0;
    double hours = std::fmod(hourAngle + 12.0 - universalHours, 24.0);
    if (hours > 12.0)
        hours -= 24.0;
    if (hours <= -12.0)
        hours += 24.0;
    return hours * 60.0;
}

SunPosition sunPosition(double jd)
{
    const EquatorialPlace sun = apparentSun(jd);
    return SunPosition{sun.declination, equationOfTime(jd, sun.rightAscension)};
}

double hoursFromTransit(double latitude, double declination, double altitude)
{
    const double phi = latitude * degree;
    const double delta = declination * degree;
    const double cosH =
        (std::sin(altitude * degree) - std::sin(phi) * std::sin(delta)) / (std::cos(phi) * std::cos(delta));
    if (cosH < -1.0 || cosH > 1.0)
        return -1.0;
    return std::acos(cosH) / degree / 15.0;
}

}  // namespace kavenda::almanac
