// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "data/RowSet.h"

#include <array>
#include <string>

namespace kavenda {

class DateTimePersian;

// The texts of one city's day page, worked out from its page row and the shown date.
class DayPage {
public:
    static constexpr int timeCount = 8;

    // The date's day of the year moves for a moment while the next day's times are formatted
    // and is put back before this returns.
    DayPage(const Row& row, DateTimePersian& date);

    const std::string& name() const { return name_; }
    const std::string& occasion() const { return occasion_; }
    const std::string& date() const { return date_; }
    // Time k from 1 to 8: the day's six times, then the next day's dawn call and sunrise.
    // Empty when the row holds no times for the day.
    const std::string& time(int k) const { return times_.at(static_cast<std::size_t>(k - 1)); }
    // Time k as a screen reader says it: its caption, then its value where the day has one.
    std::string timeReading(int k) const;

private:
    std::string name_;
    std::string occasion_;
    std::string date_;
    std::array<std::string, timeCount> times_;
};

}  // namespace kavenda
