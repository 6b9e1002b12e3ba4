// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "almanac/Sun.h"

#include "almanac/SunTable.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

namespace kavenda::almanac {
namespace {

TEST(JulianDay, KnownEpochs)
{
    EXPECT_DOUBLE_EQ(julianDay(2000, 1, 1), 2451544.5);  // J2000.0 is noon of this day
    EXPECT_DOUBLE_EQ(julianDay(1957, 10, 4), 2436115.5);  // Meeus, example 7.a (at 0h)
    EXPECT_DOUBLE_EQ(julianDay(2013, 3, 21) - julianDay(2012, 3, 21), 365.0);
}

// Almanac values at 0h UT: declination in degrees (where it is well known), equation of time
// in minutes.
struct AlmanacCase {
    int year, month, day;
    double declination;
    double equationOfTime;
};

class SunAgainstTheAlmanac : public ::testing::TestWithParam<AlmanacCase> {};

TEST_P(SunAgainstTheAlmanac, DeclinationAndEquationOfTime)
{
    const AlmanacCase& c = GetParam();
    const SunPosition sun = sunPosition(julianDay(c.year, c.month, c.day));
    if (!std::isnan(c.declination)) {
        EXPECT_NEAR(sun.declination, c.declination, 0.1);
    }
    EXPECT_NEAR(sun.equationOfTime, c.equationOfTime, 0.3);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Extremes, SunAgainstTheAlmanac, ::testing::Values(
    AlmanacCase{2013, 2, 11, NAN, -14.2},      // the equation of time at its winter minimum
    AlmanacCase{2013, 11, 3, NAN, 16.4},       // and at its autumn maximum
    AlmanacCase{2013, 6, 21, 23.44, -1.6},     // June solstice
    AlmanacCase{2013, 12, 21, -23.44, 1.9},    // December solstice
    AlmanacCase{2013, 3, 20, -0.2, -7.6}),
    [](const auto& named) { const AlmanacCase& c = named.param; return "On_" + std::to_string(c.year) + "_" + std::to_string(c.month) + "_" + std::to_string(c.day); });    // near the March equinox

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
    // clang-format on
    // In the arctic summer the sun never sets, and never drops to 17.7 degrees below.
    EXPECT_LT(hoursFromTransit(80.0, 23.0, -0.833), 0.0);
    EXPECT_LT(hoursFromTransit(55.0, 23.0, -17.7), 0.0);
}

}  // namespace
}  // namespace kavenda::almanac
