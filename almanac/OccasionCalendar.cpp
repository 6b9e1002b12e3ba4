// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "almanac/OccasionCalendar.h"

namespace kavenda::almanac {

namespace {

constexpr int ramadan = 9;
constexpr const char* qudsDay = "روز جهانی قدس";

void collect(DayEvents& events, const std::vector<Occasion>& occasions, int year, int month, int day, int monthLength)
{
    for (const Occasion& o : occasions) {
        // An occasion on day 30 of a 29-day month falls on its last day.
        const bool sameDay = o.day == day || (day == monthLength && o.day > monthLength);
        if (o.month == month && sameDay) {
            events.names.push_back(o.name);
            events.holiday = events.holiday || o.holidayIn(year);
        }
    }
}

}  // namespace

OccasionCalendar::OccasionCalendar(int officialYear, std::vector<Occasion> official, std::vector<Occasion> solar,
                                   std::vector<Occasion> lunar, HijriCalendar hijri)
    : officialYear_(officialYear), official_(std::move(official)), solar_(std::move(solar)), lunar_(std::move(lunar)),
      hijri_(std::move(hijri))
{
}

DayEvents OccasionCalendar::on(const CalendarDay& day) const
{
    DayEvents events;
    const int year = day.persianYear;
    if (year == officialYear_) {
        collect(events, official_, year, day.persianMonth, day.persianDay, 0);
        return events;
    }
    collect(events, solar_, year, day.persianMonth, day.persianDay, 0);
    const HijriDate hijri = hijri_.on(day.julianDayNumber);
    collect(events, lunar_, year, hijri.month, hijri.day, hijri.monthLength);
    // The last Friday of Ramadan.
    if (hijri.month == ramadan && weekday(day.julianDayNumber) == friday && hijri.day + 7 > hijri.monthLength)
        events.names.emplace_back(qudsDay);
    return events;
}

}  // namespace kavenda::almanac
