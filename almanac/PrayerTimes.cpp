// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "almanac/PrayerTimes.h"

#include "almanac/Sun.h"
#include "almanac/SunTable.h"

#include <cmath>
#include <cstdio>

namespace kavenda::almanac {

namespace {

// The sun moves: each event is found again with the sun's place at the event's own moment.
double eventTime(SunTable& table, const Place& place, double jd0, double altitude, int side)
{
    double hours = 12.0;
    for (int pass = 0; pass < 3; ++pass) {
        const SunPosition sun = table.position(jd0 + (hours - place.zoneHours) / 24.0);
        const double transit = 12.0 + place.zoneHours - place.longitude / 15.0 - sun.equationOfTime / 60.0;
        if (side == 0) {
            hours = transit;
            continue;
        }
        const double offset = hoursFromTransit(place.latitude, sun.declination, altitude);
        if (offset < 0)
            return std::nan("");
        hours = transit + side * offset;
    }
    return hours;
}

}  // namespace

DayTimes dayTimes(SunTable& sun, const Place& place, int year, int month, int day)
{
    const double jd0 = julianDay(year, month, day);
    DayTimes times{};
    times.dawn = eventTime(sun, place, jd0, -dawnDepression, -1);
    times.sunrise = eventTime(sun, place, jd0, horizonAltitude, -1);
    times.noon = eventTime(sun, place, jd0, 0.0, 0);
    times.sunset = eventTime(sun, place, jd0, horizonAltitude, +1);
    times.evening = eventTime(sun, place, jd0, -eveningDepression, +1);
    const double nextDawn = 24.0 + eventTime(sun, place, jd0 + 1.0, -dawnDepression, -1);
    times.midnight = (times.sunset + nextDawn) / 2.0;
    return times;
}

std::string_view formatTime(double hours, char (&buffer)[8])
{
    long minutes = std::lround(hours * 60.0) % (24 * 60);
    if (minutes < 0)
        minutes += 24 * 60;
    const int length = std::snprintf(buffer, sizeof buffer, "%ld:%02ld", minutes / 60, minutes % 60);
    return std::string_view(buffer, static_cast<std::size_t>(length));
}

}  // namespace kavenda::almanac
