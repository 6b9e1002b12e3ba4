#pragma once

namespace kavenda::astronomy {

// The sun's apparent place for a moment, by the low-precision formulae of the Astronomical
// Almanac (good to about 0.01 degree, i.e. well under a minute of time, for 1950 to 2050).
struct SunPosition {
    double declination;  // degrees, north positive
    double equationOfTime;  // minutes: apparent solar time minus mean solar time
};

// The Julian day of a Gregorian civil date at 0h UT.
double julianDay(int year, int month, int day);

SunPosition sunPosition(double julianDay);

// Hours from transit to the moment the sun's centre stands at `altitude` degrees (negative
// below the horizon), or a negative number when it never gets there that day.
double hoursFromTransit(double latitude, double declination, double altitude);

}  // namespace kavenda::astronomy
