// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/StartClock.h"

#include "desktop/ShiftedClock.h"
#include "desktop/SystemClock.h"

#include <cstdio>
#include <ctime>

namespace kavenda {

namespace {

// The shifted clock keeps the real one it runs beside.
class ClockFromMoment final : public Clock {
public:
    explicit ClockFromMoment(Instant start) : shifted_(start, system_) {}
    Instant now() const override { return shifted_.now(); }

private:
    SystemClock system_;
    ShiftedClock shifted_;
};

}  // namespace

std::optional<Instant> StartClock::parseLocalMoment(std::string_view text)
{
    std::tm fields{};
    int consumed = 0;
    const std::string copy(text);
    const int read = std::sscanf(copy.c_str(), "%4d-%2d-%2d%n", &fields.tm_year, &fields.tm_mon, &fields.tm_mday,
                                 &consumed);
    if (read != 3)
        return std::nullopt;
    if (static_cast<std::size_t>(consumed) != copy.size()) {
        int more = 0;
        const int time = std::sscanf(copy.c_str() + consumed, "T%2d:%2d%n:%2d%n", &fields.tm_hour, &fields.tm_min,
                                     &more, &fields.tm_sec, &more);
        if (time < 2 || static_cast<std::size_t>(consumed + more) != copy.size())
            return std::nullopt;
    }
    const std::tm asGiven = fields;
    fields.tm_year -= 1900;
    fields.tm_mon -= 1;
    fields.tm_isdst = -1;
    const std::time_t moment = std::mktime(&fields);
    // mktime carries 2013-02-30 over into March; such a date is no moment.
    if (moment == -1 || fields.tm_mday != asGiven.tm_mday || fields.tm_mon != asGiven.tm_mon - 1
        || asGiven.tm_hour > 23 || asGiven.tm_min > 59 || asGiven.tm_sec > 59)
        return std::nullopt;
    return Instant(std::chrono::seconds(moment));
}

std::unique_ptr<Clock> StartClock::make(const std::optional<std::string>& now)
{
    if (!now)
        return std::make_unique<SystemClock>();
    const std::optional<Instant> start = parseLocalMoment(*now);
    if (!start)
        return nullptr;
    return std::make_unique<ClockFromMoment>(*start);
}

}  // namespace kavenda
