#include "tools/icons/DayCalendar.h"

#include <unicode/calendar.h>
#include <unicode/timezone.h>

#include <stdexcept>

namespace kavenda::icons {

namespace {

constexpr double millisPerDay = 86400000.0;

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

DayCalendar::DayCalendar(int firstPersianYear)
    : persian_(calendarFor("fa_IR@calendar=persian")),
      gregorian_(calendarFor("en_US@calendar=gregorian")),
      hijri_(calendarFor("ar@calendar=islamic"))
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
    hijri_->setTime(noon - millisPerDay, status);
    const int hijriLength = hijri_->getActualMaximum(UCAL_DATE, status);
    if (U_FAILURE(status))
        throw std::runtime_error("calendar conversion failed");
    return CalendarDay{field(*persian_, UCAL_YEAR), field(*persian_, UCAL_MONTH) + 1, field(*persian_, UCAL_DATE),
                       field(*gregorian_, UCAL_YEAR), field(*gregorian_, UCAL_MONTH) + 1, field(*gregorian_, UCAL_DATE),
                       field(*hijri_, UCAL_MONTH) + 1, field(*hijri_, UCAL_DATE), hijriLength};
}

void DayCalendar::next()
{
    UErrorCode status = U_ZERO_ERROR;
    persian_->add(UCAL_DATE, 1, status);
}

}  // namespace kavenda::icons
