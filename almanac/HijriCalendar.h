// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>
#include <vector>

namespace kavenda::almanac {

// The official first day of one Hijri month, as a Julian day number.
struct HijriMonthStart {
    int year;
    int month;
    long firstDay;
};

struct HijriDate {
    int year;
    int month;
    int day;
    int monthLength;
};

// Hijri dates of the days from `firstDay` to `lastDay`, by the first days of the months: those
// of the official table, then predicted ones. Where the days lie wholly after the table, the
// predictions start afresh a month before `firstDay` rather than running on from the table's
// end, so that any span of days costs the same, and a year computed alone gets exactly the
// months the generator gave it.
class HijriCalendar {
public:
    // The predicted first day of a Hijri year and month.
    using Prediction = std::function<long(int year, int month)>;

    // Throws when the table is empty, skips a month or has a month that is not 29 or 30 days.
    HijriCalendar(std::vector<HijriMonthStart> table, long firstDay, long lastDay, const Prediction& predict);

    // Throws for a day outside the months held.
    HijriDate on(long julianDayNumber) const;

    const std::vector<HijriMonthStart>& months() const { return months_; }

private:
    void startAfterTheTable(long firstDay, const Prediction& predict);

    std::vector<HijriMonthStart> months_;  // the last entry only closes the month before it
};

}  // namespace kavenda::almanac
