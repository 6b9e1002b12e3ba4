// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace kavenda::almanac {

// The rows of one Persian year as the database holds them. Dates are date keys: (year mod
// 1300) * 10000 + month * 100 + day.
struct TimesRow {
    int stateId;
    int date;
    std::array<std::string, 6> times;  // "H:MM": dawn, sunrise, noon, sunset, evening, midnight
};

struct EventsRow {
    int date;
    std::optional<std::string> description;  // the occasions joined by "@"; none without any
    bool holiday;
};

struct YearRows {
    int year;
    // Every centre on every day of the year, and on the first day of the next year, whose
    // dawn and sunrise the last day shows as the next day's.
    std::vector<TimesRow> times;
    std::vector<EventsRow> events;  // every day of the year, in date order
};

}  // namespace kavenda::almanac
