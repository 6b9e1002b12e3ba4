// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace kavenda::almanac {

struct CivilDate {
    int year, month, day;
};

// The civil dates of one day in the two calendars the data needs, and the day's count.
struct CalendarDay {
    int persianYear, persianMonth, persianDay;
    int gregorianYear, gregorianMonth, gregorianDay;
    long julianDayNumber;
};

// The Julian day number (the count of days that names a civil day) of a Gregorian date.
long julianDayNumber(int year, int month, int day);
CivilDate gregorianDate(long julianDayNumber);

// The Persian calendar of Iran as the platforms' calendars (ICU, Qt's and the desktops')
// compute it: 31-day months to Shahrivar, 30-day months after, and a leap Esfand in 8 years of
// every 33 (1403 and 1408 are leap, 1407 is not). A day past the end of a month or a month past
// Esfand runs on into the following ones.
long persianJulianDayNumber(int year, int month, int day);
CivilDate persianDate(long julianDayNumber);

// 0 for Sunday to 6 for Saturday.
int weekday(long julianDayNumber);

inline constexpr int friday = 5;

// Walks the Persian calendar day by day from 1 Farvardin of a year.
class DayCalendar {
public:
    explicit DayCalendar(int firstPersianYear);
    CalendarDay current() const;
    void next();

private:
    long day_;
};

}  // namespace kavenda::almanac
