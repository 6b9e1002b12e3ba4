// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "almanac/Crescent.h"
#include "almanac/PrayerTimes.h"
#include "almanac/Sun.h"
#include "almanac/SunTable.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace kavenda::almanac {
namespace {

constexpr Place tehran{35.6944, 51.4215, 3.5};
constexpr double minute = 1.0 / 1440.0;

double moment(int year, int month, int day, int hour, int minutes)
{
    return julianDay(year, month, day) + (hour + minutes / 60.0) / 24.0;
}

long dayNumber(int year, int month, int day)
{
    return std::lround(julianDay(year, month, day) + 0.5);
}

// New moons of the almanacs, UT to the minute; the eclipses pin them down independently.
struct NewMoonCase {
    int lunation;
    double published;
};

TEST(NewMoon, MatchesThePublishedMoments)
{
    // clang-format off
    const NewMoonCase cases[] = {
        {0, moment(2000, 1, 6, 18, 14)},
        {159, moment(2012, 11, 13, 22, 8)},   // total solar eclipse
        {171, moment(2013, 11, 3, 12, 50)},   // hybrid solar eclipse
        {218, moment(2017, 8, 21, 18, 30)},   // total solar eclipse, America
        {300, moment(2024, 4, 8, 18, 21)},    // total solar eclipse, America
        {-12, moment(1999, 1, 17, 15, 46)},
    };
    // clang-format on
    for (const NewMoonCase& c : cases)
        EXPECT_NEAR(newMoon(c.lunation), c.published, 2 * minute) << "lunation " << c.lunation;
}

TEST(CrescentEvening, SunsetAgreesWithTheDailyTimes)
{
    // The crescent's search for the moment of sunset and the daily times' hour angle find the
    // same sunset from the same sun, within a minute.
    SunTable sun;
    const int dates[][3] = {{2013, 3, 21}, {2016, 6, 21}, {2019, 12, 22}, {2026, 9, 23}, {2031, 2, 1}};
    for (const auto& d : dates) {
        const CrescentEvening e = crescentEvening(sun, tehran, dayNumber(d[0], d[1], d[2]));
        const double localHours = (e.sunset - julianDay(d[0], d[1], d[2])) * 24.0 + tehran.zoneHours;
        EXPECT_NEAR(localHours, dayTimes(sun, tehran, d[0], d[1], d[2]).sunset, 1.0 / 60.0) << d[0] << "-" << d[1];
    }
}

TEST(CrescentEvening, TheMoonGrowsFromEveningToEvening)
{
    // New moon 8 April 2024, 18:21 UT, after sunset in Iran: on the 8th the old moon sets
    // before the sun; on the 9th the crescent is about a day old; on the 10th two.
    SunTable sun;
    const CrescentEvening before = crescentEvening(sun, tehran, dayNumber(2024, 4, 8));
    const CrescentEvening first = crescentEvening(sun, tehran, dayNumber(2024, 4, 9));
    const CrescentEvening second = crescentEvening(sun, tehran, dayNumber(2024, 4, 10));
    EXPECT_LT(before.lagMinutes, 0);
    EXPECT_GT(first.lagMinutes, 30);
    EXPECT_GT(second.lagMinutes, first.lagMinutes + 30);
    // The moon gains 10 to 15 degrees a day on the sun, fast near perigee as it was then.
    EXPECT_GT(second.elongation - first.elongation, 12.5);
    EXPECT_LT(second.elongation - first.elongation, 15.5);
    EXPECT_GT(first.elongation, 8.0);
    EXPECT_LT(first.elongation, 16.0);
    // Width follows from the elongation: SD (1 - cos ARCL), with SD near 15 arc minutes.
    EXPECT_NEAR(first.width, 15.5 * (1 - std::cos(first.elongation * std::numbers::pi / 180)), 0.1);
    EXPECT_LT(first.yallopQ(), second.yallopQ());
    EXPECT_GT(second.yallopQ(), 0.216);  // a two-day moon is plain to see
}

}  // namespace
}  // namespace kavenda::almanac
