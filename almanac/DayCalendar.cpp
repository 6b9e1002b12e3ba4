// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "almanac/DayCalendar.h"

#include "almanac/Sun.h"

#include <unicode/calendar.h>
#include <unicode/timezone.h>

#include <cmath>
#include <stdexcept>

namespace kavenda::almanac {

namespace {

std::unique_ptr<icu::Calendar> calendarFor(const char* locale)
{
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::Calendar> calendar(
        icu::Calendar::createInstance(icu::TimeZone::getGMT()->clone(), icu::Locale(locale), status));
    if (U_FAILURE(status))
        throw std::runtime_error(std::string("no calendar for ") + locale);
    return calendar;
}

int field(const icu::Calendar& calendar, UCalendarDateFields which)
{
    UErrorCode status = U_ZERO_ERROR;
    return calendar.get(which, status);
}

}  // namespace

long julianDayNumber(int year, int month, int day)
{
    return std::lround(julianDay(year, month, day) + 0.5);
}

int weekday(long julianDayNumber)
{
    return static_cast<int>((julianDayNumber + 1) % 7);
}

DayCalendar::DayCalendar(int firstPersianYear)
    : persian_(calendarFor("fa_IR@calendar=persian")), gregorian_(calendarFor("en_US@calendar=gregorian"))
{
    persian_->clear();
    persian_->set(firstPersianYear, 0, 1, 12, 0, 0);
}

DayCalendar::~DayCalendar() = default;

CalendarDay DayCalendar::current() const
{
    UErrorCode status = U_ZERO_ERROR;
    const UDate noon = persian_->getTime(status);
    gregorian_->setTime(noon, status);
    if (U_FAILURE(status))
        throw std::runtime_error("calendar conversion failed");
    const int year = field(*gregorian_, UCAL_YEAR), month = field(*gregorian_, UCAL_MONTH) + 1;
    const int day = field(*gregorian_, UCAL_DATE);
    return CalendarDay{field(*persian_, UCAL_YEAR),
                       field(*persian_, UCAL_MONTH) + 1,
                       field(*persian_, UCAL_DATE),
                       year,
                       month,
                       day,
                       julianDayNumber(year, month, day)};
}

void DayCalendar::next()
{
    UErrorCode status = U_ZERO_ERROR;
    persian_->add(UCAL_DATE, 1, status);
}

}  // namespace kavenda::almanac
