// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "almanac/MonthStartPrediction.h"

#include "almanac/Crescent.h"

#include <cmath>

namespace kavenda::almanac {

namespace {

constexpr Place tehran{35.6944, 51.4215, 3.5};
constexpr double danjonLimit = -0.293;
// Muharram 1434 began with the new moon of 13 November 2012, lunation 159 after January 2000.
constexpr int lunationOfMuharram1434 = 159;

}  // namespace

long predictedFirstDay(SunTable& sun, int hijriYear, int hijriMonth)
{
    const int lunation = lunationOfMuharram1434 + (hijriYear - 1434) * 12 + (hijriMonth - 1);
    const double conjunction = newMoon(lunation);
    // The civil day in Iran on which the conjunction falls, and the first sunset after it.
    long evening = std::lround(std::floor(conjunction + 0.5 + tehran.zoneHours / 24.0));
    CrescentEvening crescent = crescentEvening(sun, tehran, evening);
    if (crescent.sunset < conjunction)
        crescent = crescentEvening(sun, tehran, ++evening);
    return crescent.yallopQ() > danjonLimit ? evening + 1 : evening + 2;
}

}  // namespace kavenda::almanac
