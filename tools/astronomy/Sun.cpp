#include "tools/astronomy/Sun.h"

#include <cmath>
#include <numbers>

namespace kavenda::astronomy {

namespace {

constexpr double degree = std::numbers::pi / 180.0;

double normalizedDegrees(double angle)
{
    angle = std::fmod(angle, 360.0);
    return angle < 0 ? angle + 360.0 : angle;
}

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

SunPosition sunPosition(double jd)
{
    const double n = jd - 2451545.0;
    const double meanLongitude = normalizedDegrees(280.460 + 0.9856474 * n);
    const double meanAnomaly = normalizedDegrees(357.528 + 0.9856003 * n) * degree;
    const double eclipticLongitude =
        (meanLongitude + 1.915 * std::sin(meanAnomaly) + 0.020 * std::sin(2 * meanAnomaly)) * degree;
    const double obliquity = (23.439 - 0.0000004 * n) * degree;

    const double rightAscension =
        std::atan2(std::cos(obliquity) * std::sin(eclipticLongitude), std::cos(eclipticLongitude)) / degree;
    double difference = meanLongitude - normalizedDegrees(rightAscension);
    if (difference > 180.0)
        difference -= 360.0;
    if (difference < -180.0)
        difference += 360.0;

    return SunPosition{std::asin(std::sin(obliquity) * std::sin(eclipticLongitude)) / degree, 4.0 * difference};
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

}  // namespace kavenda::astronomy
