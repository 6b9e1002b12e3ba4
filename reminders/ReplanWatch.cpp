// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "reminders/ReplanWatch.h"

#include "platform/PersianCalendar.h"

#include <algorithm>
#include <utility>

namespace kavenda {

ReplanWatch::ReplanWatch(const PersianCalendar& calendar) : calendar_(calendar)
{
}

ReplanWatch::Change ReplanWatch::look(Instant wall, std::chrono::steady_clock::duration monotonic)
{
    const Seen now{wall, monotonic, localDay(wall), calendar_.timeZoneId()};
    const std::optional<Seen> before = std::exchange(last_, now);
    if (!before)
        return Change::none;
    if (now.zone != before->zone)
        return Change::zone;
    const auto wallMoved = std::chrono::duration_cast<std::chrono::steady_clock::duration>(now.wall - before->wall);
    const auto drift = wallMoved - (now.monotonic - before->monotonic);
    if (drift >= jumpThreshold || drift <= -jumpThreshold)
        return Change::clockJump;
    if (now.day != before->day)
        return Change::newDay;
    return Change::none;
}

std::chrono::milliseconds ReplanWatch::nextLookIn(Instant wall, std::chrono::milliseconds longest) const
{
    const CivilTime civil = calendar_.gregorianFields(wall);
    const std::chrono::seconds sinceMidnight{civil.hour * 3600 + civil.minute * 60 + civil.second};
    // A second past midnight, so that the look surely sees the new day.
    const std::chrono::milliseconds untilMidnight = std::chrono::hours(24) - sinceMidnight + std::chrono::seconds(1);
    return std::clamp(untilMidnight, std::chrono::milliseconds(0), longest);
}

int ReplanWatch::localDay(Instant wall) const
{
    const CivilTime civil = calendar_.gregorianFields(wall);
    return (civil.year * 100 + civil.month) * 100 + civil.day;
}

}  // namespace kavenda
