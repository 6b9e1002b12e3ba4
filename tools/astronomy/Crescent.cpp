#include "tools/astronomy/Crescent.h"

#include <libnova/angular_separation.h>
#include <libnova/dynamical_time.h>
#include <libnova/lunar.h>
#include <libnova/parallax.h>
#include <libnova/precession.h>
#include <libnova/solar.h>
#include <libnova/transform.h>

#include <cmath>
#include <numbers>

namespace kavenda::astronomy {

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

// Positions are computed in dynamical time; the earth's rotation follows universal time.
double dynamical(double jd)
{
    return ln_get_jde(jd);
}

// libnova gives places referred to the equinox of J2000; the horizon turns with the equinox of
// the date, some 0.3 degree further on by 2020, a minute or two at sunset.
ln_equ_posn ofDate(ln_equ_posn j2000, double jd)
{
    constexpr double epochJ2000 = 2451545.0;
    ln_equ_posn position{};
    ln_get_equ_prec2(&j2000, epochJ2000, dynamical(jd), &position);
    return position;
}

ln_equ_posn sunPlace(double jd)
{
    ln_equ_posn sun{};
    ln_get_solar_equ_coords(dynamical(jd), &sun);
    return ofDate(sun, jd);
}

// Both longitudes share libnova's equinox, which is all the difference needs.
double moonMinusSunLongitude(double jd)
{
    ln_lnlat_posn moon{}, sun{};
    ln_get_lunar_ecl_coords(dynamical(jd), &moon, lunarPrecision);
    ln_get_solar_ecl_coords(dynamical(jd), &sun);
    return signedDegrees(moon.lng - sun.lng);
}

ln_lnlat_posn observer(const Place& place)
{
    return ln_lnlat_posn{place.longitude, place.latitude};
}

double sunAltitude(const Place& place, double jd)
{
    ln_equ_posn sun = sunPlace(jd);
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
    MoonPlace m{};
    ln_equ_posn j2000{};
    ln_get_lunar_equ_coords_prec(dynamical(jd), &j2000, lunarPrecision);
    m.geocentric = ofDate(j2000, jd);
    ln_rect_posn rect{};
    ln_get_lunar_geo_posn(dynamical(jd), &rect, lunarPrecision);
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

CrescentEvening crescentEvening(const Place& place, long julianDayNumber)
{
    // Local noon of the day, then the sun's setting within the next nine hours.
    const double noon = static_cast<double>(julianDayNumber) - place.zoneHours / 24.0;
    const double sunset =
        lastMomentAbove(noon, noon + 0.375, [&](double t) { return sunAltitude(place, t) > sunsetAltitude; });

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

    ln_equ_posn sun = sunPlace(best);
    const MoonPlace moon = moonPlace(place, best);
    ln_equ_posn topocentricMoon = moon.topocentric;
    e.elongation = ln_get_angular_separation(&sun, &topocentricMoon);
    e.arcv = moon.altitude - sunAltitude(place, best);
    e.width = moon.semiDiameter * (1.0 - std::cos(e.elongation * degree));
    return e;
}

double CrescentEvening::yallopQ() const
{
    return (arcv - (11.8371 - 6.3226 * width + 0.7319 * width * width - 0.1018 * width * width * width)) / 10.0;
}

}  // namespace kavenda::astronomy
