// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "almanac/PrayerTimes.h"

namespace kavenda::almanac {

// The moment of the new moon (the moon's apparent ecliptic longitude equal to the sun's) of
// lunation `lunation`, counted from the new moon of 6 January 2000. Julian day, UT.
double newMoon(int lunation);

// The young moon seen from `place` on the evening of one civil day, at the best time to look
// for it: sunset plus four ninths of the time from sunset to moonset.
struct CrescentEvening {
    double sunset;  // Julian day, UT
    double lagMinutes;  // from sunset to moonset; not above zero when the moon sets first
    double elongation;  // topocentric angle from the sun to the moon, degrees
    double arcv;  // geocentric airless altitude of the moon above the sun, degrees
    double width;  // topocentric width of the crescent, arc minutes

    // Yallop's q (NAO Technical Note 69, 1997). Zones: above +0.216 easily seen by eye,
    // -0.014 seen in perfect conditions, -0.160 optical aid may be needed, -0.232 optical aid
    // needed, -0.293 not seen with a telescope; below that under the Danjon limit.
    double yallopQ() const;
};

// `julianDayNumber` names the civil day (the integer Julian day of its noon).
CrescentEvening crescentEvening(SunTable& sun, const Place& place, long julianDayNumber);

}  // namespace kavenda::almanac
