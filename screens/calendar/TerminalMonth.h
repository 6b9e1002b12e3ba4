// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "data/RowSet.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kavenda {

class MyDB;
class PersianCalendar;

// A month for the terminal, laid out as cal lays one out, with the official holidays and the
// occasions under it: the name and the year, the weekday initials from Saturday, one line a
// week, then one line for every day that has occasions. Numbers in Persian digits.
class TerminalMonth {
public:
    struct YearMonth {
        int year = 0;
        int month = 0;  // 1 to 12
        bool operator==(const YearMonth&) const = default;
    };

    TerminalMonth(MyDB& db, const PersianCalendar& calendar);

    // "YYYY-MM" as a Persian year and month; none when it is not one.
    static std::optional<YearMonth> parse(std::string_view text);
    // The printout; colour marks holidays and Fridays for a terminal. None when the data
    // holds no day of that month.
    std::optional<std::string> print(YearMonth month, bool colour) const;
    // The weekday initials from Saturday, each over its three-column day cell.
    static std::string weekdayLine();
    static std::string withoutTrailingBlanks(std::string line);
    // The weeks of each month alone, each 21 columns wide, for a year printed as months side by
    // side; none when the data does not hold the whole year.
    std::optional<std::array<std::vector<std::string>, 12>> yearWeeks(int year, bool colour) const;

private:
    // The days of the months from first to last, in order.
    RowSet rows(YearMonth first, YearMonth last) const;

    MyDB& db_;
    const PersianCalendar& calendar_;
};

}  // namespace kavenda
