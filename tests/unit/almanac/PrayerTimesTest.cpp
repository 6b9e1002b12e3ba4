// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "almanac/PrayerTimes.h"

#include "almanac/SunTable.h"

#include <gtest/gtest.h>

namespace kavenda::almanac {
namespace {

constexpr Place tehran{35.6944, 51.4215, 3.5};

TEST(PrayerTimes, SunriseAndSunsetAreSymmetricAboutNoon)
{
    SunTable sun;
    for (int month = 1; month <= 12; ++month) {
        const DayTimes t = dayTimes(sun, tehran, 2014, month, 15);
        EXPECT_NEAR((t.sunrise + t.sunset) / 2.0, t.noon, 1.0 / 60.0) << month;
        EXPECT_NEAR((t.dawn + t.evening) / 2.0 - t.noon, (t.dawn - t.sunrise + t.evening - t.sunset) / 2.0, 1.0 / 60.0);
    }
}

TEST(PrayerTimes, DayLengthsAtTheEquinoxAndTheSolstices)
{
    SunTable sun;
    // Refraction and the sun's half-disc lengthen the equinox day past twelve hours by a few
    // minutes at this latitude.
    const DayTimes equinox = dayTimes(sun, tehran, 2013, 3, 20);
    const double equinoxLength = (equinox.sunset - equinox.sunrise) * 60.0;
    EXPECT_GT(equinoxLength, 12 * 60 + 5);
    EXPECT_LT(equinoxLength, 12 * 60 + 14);

    // Tehran's longest day is about 14 h 30 min and its shortest about 9 h 50 min; the two
    // add up to 24 hours plus twice the equinox excess.
    const DayTimes june = dayTimes(sun, tehran, 2013, 6, 21);
    const DayTimes december = dayTimes(sun, tehran, 2013, 12, 21);
    const double longest = (june.sunset - june.sunrise) * 60.0;
    const double shortest = (december.sunset - december.sunrise) * 60.0;
    EXPECT_NEAR(longest, 14 * 60 + 30, 8);
    EXPECT_NEAR(shortest, 9 * 60 + 50, 8);
    EXPECT_NEAR(longest + shortest, 24 * 60 + 2 * (equinoxLength - 12 * 60), 4);
}

TEST(PrayerTimes, NoonFollowsLongitudeAndTheEquationOfTime)
{
    SunTable sun;
    // 3 November: the sun runs 16.4 minutes fast; Tehran lies 1.4 degrees west of 52.5 E.
    const DayTimes t = dayTimes(sun, tehran, 2013, 11, 3);
    const double expected = 12.0 + (52.5 - 51.4215) / 15.0 - 16.4 / 60.0;
    EXPECT_NEAR(t.noon, expected, 0.5 / 60.0);
}

TEST(PrayerTimes, OrderAndMidnight)
{
    SunTable sun;
    for (int month = 1; month <= 12; ++month) {
        const DayTimes t = dayTimes(sun, tehran, 2015, month, 1);
        EXPECT_LT(t.dawn, t.sunrise);
        EXPECT_LT(t.sunrise, t.noon);
        EXPECT_LT(t.noon, t.sunset);
        EXPECT_LT(t.sunset, t.evening);
        // Evening call: 4.5 degrees takes some 17 to 25 minutes after sunset here.
        EXPECT_GT((t.evening - t.sunset) * 60.0, 15.0);
        EXPECT_LT((t.evening - t.sunset) * 60.0, 27.0);
        const DayTimes next = dayTimes(sun, tehran, 2015, month, 2);
        EXPECT_NEAR(t.midnight, (t.sunset + 24.0 + next.dawn) / 2.0, 1e-9);
    }
}

}  // namespace
}  // namespace kavenda::almanac
