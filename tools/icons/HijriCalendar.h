#pragma once

#include <vector>

namespace kavenda::icons {

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

// Hijri dates by the first days of the months: those of the official table, then predicted
// ones until `lastDay` is covered.
class HijriCalendar {
public:
    // Throws when the table is empty, skips a month or has a month that is not 29 or 30 days.
    HijriCalendar(std::vector<HijriMonthStart> table, long lastDay);

    // Throws for a day before the table's first month or after `lastDay`.
    HijriDate on(long julianDayNumber) const;

    const std::vector<HijriMonthStart>& months() const { return months_; }

private:
    std::vector<HijriMonthStart> months_;  // the last entry only closes the month before it
};

}  // namespace kavenda::icons
