// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "almanac/Sun.h"
#include "almanac/Crescent.h"
#include "almanac/DayCalendar.h"
#include "almanac/PrayerTimes.h"
#include "almanac/SunTable.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

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
        {2013, 2, 11, NAN, -14.2},  // the equation of time at its winter minimum
        {2013, 11, 3, NAN, 16.4},  // and at its autumn maximum
        {2013, 6, 21, 23.44, -1.6},  // June solstice
        {2013, 12, 21, -23.44, 1.9},  // December solstice
        {2013, 3, 20, -0.2, -7.6},  // near the March equinox
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
            EXPECT_TRUE(between.rightAscension >= 0.0 && between.rightAscension < 360.0) << jd;
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
        EXPECT_NEAR((t.evening - t.sunset) * 60.0, 21.0, 6.0) << month;
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

// New moons of the almanacs, UT to the minute; the eclipses pin them down independently.
TEST(NewMoon, MatchesThePublishedMoments)
{
    const auto ut = [](int year, int month, int day, int hour, int minute) {
        return julianDay(year, month, day) + (hour + minute / 60.0) / 24.0;
    };
    // clang-format off
    const std::pair<int, double> cases[] = {
        {0, ut(2000, 1, 6, 18, 14)},
        {159, ut(2012, 11, 13, 22, 8)},   // total solar eclipse
        {171, ut(2013, 11, 3, 12, 50)},   // hybrid solar eclipse
        {218, ut(2017, 8, 21, 18, 30)},   // total solar eclipse, America
        {300, ut(2024, 4, 8, 18, 21)},    // total solar eclipse, America
        {-12, ut(1999, 1, 17, 15, 46)},
    };
    // clang-format on
    for (const auto& [lunation, published] : cases)
        EXPECT_NEAR(newMoon(lunation), published, 2.0 / 1440) << "lunation " << lunation;
}

TEST(CrescentEvening, SunsetAgreesWithTheDailyTimes)
{
    // The crescent's search for the moment of sunset and the daily times' hour angle find the
    // same sunset from the same sun, within a minute.
    SunTable sun;
    const int dates[][3] = {{2013, 3, 21}, {2016, 6, 21}, {2019, 12, 22}, {2026, 9, 23}, {2031, 2, 1}};
    for (const auto& [y, m, d] : dates) {
        const CrescentEvening e = crescentEvening(sun, tehran, julianDayNumber(y, m, d));
        const double localHours = (e.sunset - julianDay(y, m, d)) * 24.0 + tehran.zoneHours;
        EXPECT_NEAR(localHours, dayTimes(sun, tehran, y, m, d).sunset, 1.0 / 60.0) << y << "-" << m;
    }
}

TEST(CrescentEvening, TheMoonGrowsFromEveningToEvening)
{
    // New moon 8 April 2024, 18:21 UT, after sunset in Iran: on the 8th the old moon sets
    // before the sun; on the 9th the crescent is about a day old; on the 10th two.
    SunTable sun;
    const CrescentEvening before = crescentEvening(sun, tehran, julianDayNumber(2024, 4, 8));
    const CrescentEvening first = crescentEvening(sun, tehran, julianDayNumber(2024, 4, 9));
    const CrescentEvening second = crescentEvening(sun, tehran, julianDayNumber(2024, 4, 10));
    EXPECT_LT(before.lagMinutes, 0);
    EXPECT_GT(first.lagMinutes, 30);
    EXPECT_GT(second.lagMinutes, first.lagMinutes + 30);
    // The moon gains 10 to 15 degrees a day on the sun, fast near perigee as it was then.
    EXPECT_NEAR(second.elongation - first.elongation, 14.0, 1.5);
    EXPECT_NEAR(first.elongation, 12.0, 4.0);
    // Width follows from the elongation: SD (1 - cos ARCL), with SD near 15 arc minutes.
    EXPECT_NEAR(first.width, 15.5 * (1 - std::cos(first.elongation * std::numbers::pi / 180)), 0.1);
    EXPECT_LT(first.yallopQ(), second.yallopQ());
    EXPECT_GT(second.yallopQ(), 0.216);  // a two-day moon is plain to see
}

}  // namespace
}  // namespace kavenda::almanac
