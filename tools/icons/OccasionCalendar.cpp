#include "tools/icons/OccasionCalendar.h"

namespace kavenda::icons {

namespace {

void collect(DayEvents& events, const std::vector<Occasion>& occasions, int month, int day, int monthLength)
{
    for (const Occasion& o : occasions) {
        // An occasion on day 30 of a 29-day month falls on its last day.
        const bool sameDay = o.day == day || (day == monthLength && o.day > monthLength);
        if (o.month == month && sameDay) {
            events.names.push_back(o.name);
            events.holiday = events.holiday || o.holiday;
        }
    }
}

}  // namespace

OccasionCalendar::OccasionCalendar(int officialYear, std::vector<Occasion> official, std::vector<Occasion> solar,
                                   std::vector<Occasion> lunar)
    : officialYear_(officialYear), official_(std::move(official)), solar_(std::move(solar)), lunar_(std::move(lunar))
{
}

DayEvents OccasionCalendar::on(const CalendarDay& day) const
{
    DayEvents events;
    if (day.persianYear == officialYear_) {
        collect(events, official_, day.persianMonth, day.persianDay, 0);
        return events;
    }
    collect(events, solar_, day.persianMonth, day.persianDay, 0);
    collect(events, lunar_, day.hijriMonth, day.hijriDay, day.hijriMonthLength);
    return events;
}

}  // namespace kavenda::icons
