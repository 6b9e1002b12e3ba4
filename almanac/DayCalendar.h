// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <unicode/calendar.h>

#include <memory>

namespace kavenda::almanac {

// The civil dates of one day in the two calendars the data needs, and the day's count.
struct CalendarDay {
    int persianYear, persianMonth, persianDay;
    int gregorianYear, gregorianMonth, gregorianDay;
    long julianDayNumber;
};

// The Julian day number (the count of days that names a civil day) of a Gregorian date.
long julianDayNumber(int year, int month, int day);

// 0 for Sunday to 6 for Saturday.
int weekday(long julianDayNumber);

inline constexpr int friday = 5;

// Walks the Persian calendar day by day from 1 Farvardin of a year.
class DayCalendar {
public:
    explicit DayCalendar(int firstPersianYear);
    ~DayCalendar();
    CalendarDay current() const;
    void next();

private:
    std::unique_ptr<icu::Calendar> persian_;
    std::unique_ptr<icu::Calendar> gregorian_;
};

}  // namespace kavenda::almanac
