// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "almanac/Crescent.h"

#include "almanac/Sun.h"
#include "almanac/SunTable.h"

#include <libnova/angular_separation.h>
#include <libnova/dynamical_time.h>
#include <libnova/lunar.h>
#include <libnova/parallax.h>
#include <libnova/solar.h>
#include <libnova/transform.h>

#include <cmath>
#include <numbers>

namespace kavenda::almanac {

namespace {

constexpr double degree = std::numbers::pi / 180.0;
constexpr double synodicMonth = 29.530588861;
constexpr double firstNewMoon = 2451550.09766;  // mean new moon of lunation 0 (Meeus 49.1), TT
constexpr double earthRadiusKm = 6378.14;
constexpr double kmPerAu = 149597870.7;
constexpr double minute = 1.0 / 1440.0;
constexpr double sunsetAltitude = -0.8333;
// Terms of the lunar theory below this (radians; km for the distance) are left out: a tenth
// of an arc second, far below what the eye can tell, at a small part of the time.
constexpr double lunarPrecision = 5e-7;

double signedDegrees(double angle)
{
    angle = std::fmod(angle, 360.0);
    if (angle > 180.0)
        angle -= 360.0;
    if (angle <= -180.0)
        angle += 360.0;
    return angle;
}

ln_equ_posn sunPlace(SunTable& sun, double jd)
{
    const EquatorialPlace place = sun.place(jd);
    return ln_equ_posn{place.rightAscension, place.declination};
}

// Both longitudes share libnova's equinox, which is all the difference needs.
double moonMinusSunLongitude(double jd)
{
    forgetNutation(jd);
    ln_lnlat_posn moon{}, sun{};
    ln_get_lunar_ecl_coords(dynamicalTime(jd), &moon, lunarPrecision);
    ln_get_solar_ecl_coords(dynamicalTime(jd), &sun);
    return signedDegrees(moon.lng - sun.lng);
}

ln_lnlat_posn observer(const Place& place)
{
    return ln_lnlat_posn{place.longitude, place.latitude};
}

double sunAltitude(SunTable& table, const Place& place, double jd)
{
    ln_equ_posn sun = sunPlace(table, jd);
    forgetNutation(jd);
    ln_lnlat_posn where = observer(place);
    ln_hrz_posn hrz{};
    ln_get_hrz_from_equ(&sun, &where, jd, &hrz);
    return hrz.alt;
}

struct MoonPlace {
    ln_equ_posn geocentric;
    ln_equ_posn topocentric;
    double altitude;  // geocentric, airless
    double parallax;  // horizontal, degrees
    double semiDiameter;  // topocentric, arc minutes
};

MoonPlace moonPlace(const Place& place, double jd)
{
    forgetNutation(jd);
    MoonPlace m{};
    ln_equ_posn j2000{};
    ln_get_lunar_equ_coords_prec(dynamicalTime(jd), &j2000, lunarPrecision);
    const EquatorialPlace geocentric = placeOfDate({j2000.ra, j2000.dec}, jd);
    m.geocentric = {geocentric.rightAscension, geocentric.declination};
    ln_rect_posn rect{};
    ln_get_lunar_geo_posn(dynamicalTime(jd), &rect, lunarPrecision);
    const double distance = std::hypot(rect.X, rect.Y, rect.Z);
    ln_lnlat_posn where = observer(place);
    ln_equ_posn shift{};
    ln_get_parallax(&m.geocentric, distance / kmPerAu, &where, 0.0, jd, &shift);
    m.topocentric = {m.geocentric.ra + shift.ra, m.geocentric.dec + shift.dec};
    ln_hrz_posn hrz{};
    ln_get_hrz_from_equ(&m.geocentric, &where, jd, &hrz);
    m.altitude = hrz.alt;
    m.parallax = std::asin(earthRadiusKm / distance) / degree;
    const double geocentricSemiDiameter = 358473400.0 / distance / 60.0;  // Meeus 55
    m.semiDiameter = geocentricSemiDiameter * (1.0 + std::sin(m.altitude * degree) * std::sin(m.parallax * degree));
    return m;
}

// The moment in [from, to] at which `above(t)` turns from true to false, to a few seconds.
template <typename Above> double lastMomentAbove(double from, double to, Above above)
{
    while (to - from > 0.05 * minute) {
        const double middle = (from + to) / 2;
        (above(middle) ? from : to) = middle;
    }
    return from;
}

}  // namespace

double newMoon(int lunation)
{
    // Start from the mean new moon and let the true longitudes close the gap; the moon gains
    // about 12.2 degrees a day on the sun.
    double jd = firstNewMoon + synodicMonth * lunation;
    for (int pass = 0; pass < 8; ++pass) {
        const double step = -moonMinusSunLongitude(jd) / 12.19;
        jd += step;
        if (std::abs(step) < 1e-6)
            break;
    }
    return jd;
}

CrescentEvening crescentEvening(SunTable& sun, const Place& place, long julianDayNumber)
{
    // Local noon of the day, then the sun's setting within the next nine hours.
    const double noon = static_cast<double>(julianDayNumber) - place.zoneHours / 24.0;
    const double sunset =
        lastMomentAbove(noon, noon + 0.375, [&](double t) { return sunAltitude(sun, place, t) > sunsetAltitude; });

    // The moon's upper limb on the horizon with refraction (Meeus 15): its centre at
    // 0.7275 parallax - 0.5667 degrees, geocentric.
    auto moonUp = [&](double t) {
        const MoonPlace m = moonPlace(place, t);
        return m.altitude > 0.7275 * m.parallax - 0.5667;
    };
    CrescentEvening e{};
    e.sunset = sunset;
    double best = sunset;
    if (moonUp(sunset)) {
        const double moonset = lastMomentAbove(sunset, sunset + 0.25, moonUp);
        e.lagMinutes = (moonset - sunset) / minute;
        best = sunset + 4.0 / 9.0 * (moonset - sunset);
    } else {
        const double moonset = lastMomentAbove(sunset - 0.25, sunset, moonUp);
        e.lagMinutes = (moonset - sunset) / minute;
    }

    ln_equ_posn sunThen = sunPlace(sun, best);
    const MoonPlace moon = moonPlace(place, best);
    ln_equ_posn topocentricMoon = moon.topocentric;
    e.elongation = ln_get_angular_separation(&sunThen, &topocentricMoon);
    e.arcv = moon.altitude - sunAltitude(sun, place, best);
    e.width = moon.semiDiameter * (1.0 - std::cos(e.elongation * degree));
    return e;
}

double CrescentEvening::yallopQ() const
{
    return (arcv - (11.8371 - 6.3226 * width + 0.7319 * width * width - 0.1018 * width * width * width)) / 10.0;
}

}  // namespace kavenda::almanac
