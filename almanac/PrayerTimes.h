// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string_view>

namespace kavenda::almanac {

class SunTable;

struct Place {
    double latitude;  // degrees north
    double longitude;  // degrees east
    double zoneHours;  // standard time offset from UT (Iran: 3.5)
};

// The day's religious times in hours of local standard time, by the method of the Institute
// of Geophysics of the University of Tehran. Midnight may run past 24.
struct DayTimes {
    double dawn;  // sun 17.7 degrees below the horizon, morning
    double sunrise;  // upper limb on the horizon with refraction: -0.833 degrees
    double noon;  // transit
    double sunset;
    double evening;  // sun 4.5 degrees below the horizon, evening
    double midnight;  // halfway from sunset to the next dawn
};

inline constexpr double dawnDepression = 17.7;
inline constexpr double eveningDepression = 4.5;
inline constexpr double horizonAltitude = -0.833;

DayTimes dayTimes(SunTable& sun, const Place& place, int year, int month, int day);

// Hours as "H:MM", rounded to the minute and wrapped into one day.
std::string_view formatTime(double hours, char (&buffer)[8]);

}  // namespace kavenda::almanac
