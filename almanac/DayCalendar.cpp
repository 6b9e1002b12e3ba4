// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "almanac/DayCalendar.h"

#include "almanac/Sun.h"

#include <cmath>

namespace kavenda::almanac {

namespace {

// 1 Farvardin of the year 1.
constexpr long persianEpoch = 1948320;
constexpr int daysBeforeMonth[12] = {0, 31, 62, 93, 124, 155, 186, 216, 246, 276, 306, 336};

long floorDivide(long numerator, long denominator)
{
    return numerator / denominator - (numerator % denominator < 0 ? 1 : 0);
}

long persianNewYear(long year)
{
    return persianEpoch + 365 * (year - 1) + floorDivide(8 * year + 21, 33);
}

}  // namespace

long julianDayNumber(int year, int month, int day)
{
    return std::lround(julianDay(year, month, day) + 0.5);
}

CivilDate gregorianDate(long julianDayNumber)
{
    // Richards' inverse of the Gregorian day count.
    const long a = julianDayNumber + 32044;
    const long b = (4 * a + 3) / 146097;
    const long c = a - 146097 * b / 4;
    const long d = (4 * c + 3) / 1461;
    const long e = c - 1461 * d / 4;
    const long m = (5 * e + 2) / 153;
    return CivilDate{static_cast<int>(100 * b + d - 4800 + m / 10), static_cast<int>(m + 3 - 12 * (m / 10)),
                     static_cast<int>(e - (153 * m + 2) / 5 + 1)};
}

long persianJulianDayNumber(int year, int month, int day)
{
    const long monthIndex = month - 1;
    const long fullYear = year + floorDivide(monthIndex, 12);
    return persianNewYear(fullYear) + daysBeforeMonth[monthIndex - 12 * floorDivide(monthIndex, 12)] + day - 1;
}

CivilDate persianDate(long julianDayNumber)
{
    // The mean year of the cycle gives the year or the one beside it.
    long year = 1 + floorDivide(33 * (julianDayNumber - persianEpoch) + 3, 12053);
    while (persianNewYear(year + 1) <= julianDayNumber)
        ++year;
    while (persianNewYear(year) > julianDayNumber)
        --year;
    const long dayOfYear = julianDayNumber - persianNewYear(year);
    const int month =
        dayOfYear < daysBeforeMonth[6] ? static_cast<int>(dayOfYear / 31) : static_cast<int>((dayOfYear - 6) / 30);
    return CivilDate{static_cast<int>(year), month + 1, static_cast<int>(dayOfYear - daysBeforeMonth[month] + 1)};
}

int weekday(long julianDayNumber)
{
    return static_cast<int>((julianDayNumber + 1) % 7);
}

DayCalendar::DayCalendar(int firstPersianYear) : day_(persianJulianDayNumber(firstPersianYear, 1, 1))
{
}

CalendarDay DayCalendar::current() const
{
    const CivilDate persian = persianDate(day_);
    const CivilDate gregorian = gregorianDate(day_);
    return CalendarDay{persian.year, persian.month, persian.day, gregorian.year, gregorian.month, gregorian.day, day_};
}

void DayCalendar::next()
{
    ++day_;
}

}  // namespace kavenda::almanac
