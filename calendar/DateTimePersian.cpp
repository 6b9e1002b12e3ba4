// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "calendar/DateTimePersian.h"

#include "calendar/TimeOfDay.h"

#include "data/IntValue.h"
#include "platform/Clock.h"
#include "platform/PersianCalendar.h"
#include "text/Format.h"

#include <array>

namespace kavenda {

namespace {

constexpr std::array<int, 12> gregorianMonthDays{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
constexpr std::array<std::string_view, 12> monthNames{"فروردین", "اردیبهشت", "خرداد", "تیر", "مرداد", "شهریور",
                                                      "مهر",     "آبان",     "آذر",   "دی",  "بهمن",  "اسفند"};
constexpr int lastYearWithSummerHour = 1401;
constexpr int lastDayWithSummerHour = 185;
constexpr int minutesPerDay = 24 * 60;
constexpr int hoursPerDay = 24;

int gregorianYearLength(int year)
{
    return year % 4 == 0 ? 366 : 365;
}

int gregorianDayOfYear(int year, int month, int day)
{
    int n = day;
    for (int m = 1; m < month && m <= 12; ++m)
        n += gregorianMonthDays[static_cast<std::size_t>(m - 1)] + (m == 2 && gregorianYearLength(year) == 366 ? 1 : 0);
    return n;
}

// The day of its Gregorian year on which 1 Farvardin of a Persian year falls (noon keeps the
// civil day whatever the zone's offset).
int newYearDay(int persianYear, const PersianCalendar& calendar)
{
    const CivilTime civil = calendar.gregorianFields(calendar.instantOf(persianYear, 1, 1, 12, 0));
    return gregorianDayOfYear(civil.year, civil.month, civil.day);
}

}  // namespace

DateTimePersian DateTimePersian::init(const Clock& clock, const PersianCalendar& calendar)
{
    return init(clock.now(), calendar);
}

DateTimePersian DateTimePersian::init(Instant instant, const PersianCalendar& calendar)
{
    const CivilTime civil = calendar.gregorianFields(instant);
    const int n = gregorianDayOfYear(civil.year, civil.month, civil.day);

    // The Persian year that began in the previous Gregorian year, counted from its first day;
    // where the years begin comes from the platform's calendar, whose leap years are the
    // official ones.
    const int previousYearLength = gregorianYearLength(civil.year - 1);
    const int firstDay = newYearDay(civil.year - 622, calendar);
    const int nextFirstDay = newYearDay(civil.year - 621, calendar);
    const int yearLength = previousYearLength - firstDay + nextFirstDay;

    int year = civil.year - 622;
    int dayOfYear = n + previousYearLength - firstDay + 1;
    if (dayOfYear > yearLength) {
        dayOfYear -= yearLength;
        year = civil.year - 621;
    }

    // Only the year that ends in this Gregorian year reaches Esfand.
    const int esfandDays = yearLength - 336;
    int month = 1;
    int rest = dayOfYear;
    for (;;) {
        const int length = month <= 6 ? 31 : month <= 11 ? 30 : esfandDays;
        if (rest - length < 1 || month == 12)
            break;
        rest -= length;
        ++month;
    }
    return DateTimePersian(year, month, rest, dayOfYear);
}

DateTimePersian DateTimePersian::initWithPersianDate(std::string_view key, const PersianCalendar& calendar)
{
    const std::size_t dayAt = key.size() >= 2 ? key.size() - 2 : 0;
    const std::size_t monthAt = dayAt >= 2 ? dayAt - 2 : 0;
    const int year = intValue(key.substr(0, monthAt));
    const int month = intValue(key.substr(monthAt, dayAt - monthAt));
    const int day = intValue(key.substr(dayAt));
    const DateTimePersian date(year, month, day, 0);
    return DateTimePersian(year, month, day, calendar.dayOfYear(date.fullYear(), month, day));
}

int DateTimePersian::fullYear() const
{
    return year_ >= 1300 ? year_ : year_ + 1300;
}

bool DateTimePersian::hasSummerHour() const
{
    return dayOfYear_ <= lastDayWithSummerHour && fullYear() <= lastYearWithSummerHour;
}

std::string DateTimePersian::getPersianDate() const
{
    return format("%d%02d%02d", {year_ % 1300, month_, day_});
}

std::string DateTimePersian::getFullPersianDate() const
{
    return format("%02d %@", {day_, getMonthName(month_ - 1)});
}

std::string DateTimePersian::formatHour(std::string_view time) const
{
    TimeOfDay t = readTimeOfDay(time);
    // Wide arithmetic: a damaged time text may hold any int.
    if (hasSummerHour())
        t.hour = static_cast<int>((static_cast<long long>(t.hour) + 1) % hoursPerDay);
    return format("%02d:%02d", {t.hour, t.minute});
}

std::string DateTimePersian::add(std::string_view time, std::string_view timeToInterval)
{
    const TimeOfDay t = readTimeOfDay(time);
    const long long minutes = static_cast<long long>(t.hour) * 60 + t.minute + intValue(timeToInterval);
    const auto total = static_cast<int>((minutes % minutesPerDay + minutesPerDay) % minutesPerDay);
    return format("%d:%d", {total / 60, total % 60});
}

std::string DateTimePersian::getMonthName(int index)
{
    if (index < 0 || index >= static_cast<int>(monthNames.size()))
        return {};
    return std::string(monthNames[static_cast<std::size_t>(index)]);
}

}  // namespace kavenda
