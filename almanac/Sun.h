// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace kavenda::almanac {

// A place on the sky referred to the equator, in degrees.
struct EquatorialPlace {
    double rightAscension;
    double declination;
};

// What the daily times need of the sun.
struct SunPosition {
    double declination;  // degrees, north positive
    double equationOfTime;  // minutes: apparent solar time minus mean solar time
};

// The Julian day of a Gregorian civil date at 0h UT.
double julianDay(int year, int month, int day);

// Positions are computed in dynamical time; the earth's rotation follows universal time.
double dynamicalTime(double julianDay);

// libnova keeps the last nutation it computed and hands it out again for any moment within a
// tenth of a day, so that a place would depend on what was asked before. Every computation
// with libnova starts with this: the same moment then always gives the same place, in the
// generator's run of years as in a year computed alone.
void forgetNutation(double julianDay);

// libnova refers its places to the equinox of J2000; the hour angle turns with the equinox of
// the date, some 0.3 degree further on by 2020, more than a minute of time.
EquatorialPlace placeOfDate(EquatorialPlace j2000, double julianDay);

// The sun's apparent place of the date (libnova: VSOP87 with nutation and aberration).
EquatorialPlace apparentSun(double julianDay);

// The equation of time of a moment from the sun's right ascension then: the Greenwich hour
// angle of the true sun against universal time.
double equationOfTime(double julianDay, double rightAscension);

SunPosition sunPosition(double julianDay);

// Hours from transit to the moment the sun's centre stands at `altitude` degrees (negative
// below the horizon), or a negative number when it never gets there that day.
double hoursFromTransit(double latitude, double declination, double altitude);

}  // namespace kavenda::almanac
