// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <string>

namespace kavenda {

class MyDB;
class PersianCalendar;

// A Persian year for the terminal as cal -y lays one out: the twelve months three across within
// 80 columns, holidays and Fridays coloured as in a month, without the occasions.
class TerminalYear {
public:
    TerminalYear(MyDB& db, const PersianCalendar& calendar);

    // None when the data lacks a month of the year.
    std::optional<std::string> print(int year, bool colour) const;

private:
    MyDB& db_;
    const PersianCalendar& calendar_;
};

}  // namespace kavenda
