// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "almanac/PrayerTimes.h"
#include "almanac/Sun.h"
#include "almanac/SunTable.h"

#include <gtest/gtest.h>

#include <cmath>

namespace kavenda::almanac {
namespace {

constexpr Place tehran{35.6944, 51.4215, 3.5};

// Almanac values at 0h UT: declination in degrees (where it is well known), equation of time
// in minutes.
TEST(SunAgainstTheAlmanac, DeclinationAndEquationOfTime)
{
    const struct {
        int year, month, day;
        double declination;
        double equationOfTime;
    } cases[] = {
        {2013, 2, 11, NAN, -14.2},    // the equation of time at its winter minimum
        {2013, 11, 3, NAN, 16.4},     // and at its autumn maximum
        {2013, 6, 21, 23.44, -1.6},   // June solstice
        {2013, 12, 21, -23.44, 1.9},  // December solstice
        {2013, 3, 20, -0.2, -7.6},    // near the March equinox
    };
    for (const auto& c : cases) {
        const SunPosition sun = sunPosition(julianDay(c.year, c.month, c.day));
        if (!std::isnan(c.declination)) {
            EXPECT_NEAR(sun.declination, c.declination, 0.1) << c.month;
        }
        EXPECT_NEAR(sun.equationOfTime, c.equationOfTime, 0.3) << c.month;
    }
}

// The table's straight lines between midnights stay on libnova's curve, also where the right
// ascension passes 360 (the March equinox) and where the declination turns (the solstices).
TEST(SunTable, FollowsTheSunBetweenMidnights)
{
    SunTable table;
    for (const double from : {julianDay(2031, 3, 19), julianDay(2031, 6, 20), julianDay(2031, 12, 20)}) {
        for (double jd = from; jd < from + 3.0; jd += 0.0625) {
            const EquatorialPlace direct = apparentSun(jd), between = table.place(jd);
            double difference = std::fmod(between.rightAscension - direct.rightAscension + 540.0, 360.0) - 180.0;
            EXPECT_LT(std::abs(difference), 0.001) << jd;
            EXPECT_GE(between.rightAscension, 0.0);
            EXPECT_LT(between.rightAscension, 360.0);
            EXPECT_NEAR(between.declination, direct.declination, 0.001) << jd;
            EXPECT_NEAR(table.position(jd).equationOfTime, sunPosition(jd).equationOfTime, 0.01) << jd;
        }
    }
}

TEST(HoursFromTransit, EquatorEquinoxAndPolarDay)
{
    // At the equator with the sun on the equator, the geometric horizon is six hours away.
    EXPECT_NEAR(hoursFromTransit(0.0, 0.0, 0.0), 6.0, 1e-9);
    // In the arctic summer the sun never sets, and never drops to 17.7 degrees below.
    EXPECT_LT(hoursFromTransit(80.0, 23.0, -0.833), 0.0);
    EXPECT_LT(hoursFromTransit(55.0, 23.0, -17.7), 0.0);
}

TEST(PrayerTimes, OrderSymmetryAndMidnightEveryMonth)
{
    SunTable sun;
    for (int month = 1; month <= 12; ++month) {
        const DayTimes t = dayTimes(sun, tehran, 2015, month, 1);
        EXPECT_LT(t.dawn, t.sunrise);
        EXPECT_NEAR((t.sunrise + t.sunset) / 2.0, t.noon, 1.0 / 60.0) << month;
        // Evening call: 4.5 degrees takes some 17 to 25 minutes after sunset here.
        EXPECT_GT((t.evening - t.sunset) * 60.0, 15.0);
        EXPECT_LT((t.evening - t.sunset) * 60.0, 27.0);
        const DayTimes next = dayTimes(sun, tehran, 2015, month, 2);
        EXPECT_NEAR(t.midnight, (t.sunset + 24.0 + next.dawn) / 2.0, 1e-9);
    }
}

TEST(PrayerTimes, DayLengthsAndNoonOfTheAlmanac)
{
    SunTable sun;
    // Refraction and the sun's half-disc lengthen the equinox day past twelve hours by a few
    // minutes; Tehran's longest day is about 14 h 30 min and its shortest about 9 h 50 min.
    const auto length = [&sun](int month, int day) {
        const DayTimes t = dayTimes(sun, tehran, 2013, month, day);
        return (t.sunset - t.sunrise) * 60.0;
    };
    EXPECT_NEAR(length(3, 20), 12 * 60 + 9.5, 4.5);
    EXPECT_NEAR(length(6, 21), 14 * 60 + 30, 8);
    EXPECT_NEAR(length(12, 21), 9 * 60 + 50, 8);
    // 3 November: the sun runs 16.4 minutes fast; Tehran lies 1.4 degrees west of 52.5 E.
    EXPECT_NEAR(dayTimes(sun, tehran, 2013, 11, 3).noon, 12.0 + (52.5 - 51.4215) / 15.0 - 16.4 / 60.0, 0.5 / 60.0);
}

}  // namespace
}  // namespace kavenda::almanac
