#include "platform/IcuPersianCalendar.h"

#include <unicode/calendar.h>
#include <unicode/gregocal.h>
#include <unicode/locid.h>
#include <unicode/timezone.h>

#include <memory>

namespace kavenda {

namespace {

std::unique_ptr<icu::Calendar> persianCalendar()
{
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::Calendar> calendar(
        icu::Calendar::createInstance(icu::Locale("fa_IR@calendar=persian"), status));
    if (U_FAILURE(status))
        return nullptr;
    return calendar;
}

void setPersianDay(icu::Calendar& calendar, int year, int month, int day, int hour, int minute)
{
    calendar.clear();
    calendar.set(year, month - 1, day, hour, minute, 0);
}

}  // namespace

int IcuPersianCalendar::dayOfYear(int year, int month, int day) const
{
    auto calendar = persianCalendar();
    if (!calendar)
        return 0;
    setPersianDay(*calendar, year, month, day, 0, 0);
    UErrorCode status = U_ZERO_ERROR;
    const int ordinal = calendar->get(UCAL_DAY_OF_YEAR, status);
    return U_SUCCESS(status) ? ordinal : 0;
}

Instant IcuPersianCalendar::instantOf(int year, int month, int day, int hour, int minute) const
{
    auto calendar = persianCalendar();
    if (!calendar)
        return Instant{};
    setPersianDay(*calendar, year, month, day, hour, minute);
    UErrorCode status = U_ZERO_ERROR;
    const UDate millis = calendar->getTime(status);
    if (U_FAILURE(status))
        return Instant{};
    return Instant{std::chrono::seconds{static_cast<long long>(millis / 1000.0)}};
}

CivilTime IcuPersianCalendar::gregorianFields(Instant instant) const
{
    UErrorCode status = U_ZERO_ERROR;
    icu::GregorianCalendar calendar(status);
    calendar.setTime(static_cast<UDate>(instant.time_since_epoch().count()) * 1000.0, status);
    CivilTime fields;
    fields.year = calendar.get(UCAL_YEAR, status);
    fields.month = calendar.get(UCAL_MONTH, status) + 1;
    fields.day = calendar.get(UCAL_DATE, status);
    fields.hour = calendar.get(UCAL_HOUR_OF_DAY, status);
    fields.minute = calendar.get(UCAL_MINUTE, status);
    fields.second = calendar.get(UCAL_SECOND, status);
    return U_SUCCESS(status) ? fields : CivilTime{};
}

std::string IcuPersianCalendar::timeZoneId() const
{
    std::unique_ptr<icu::TimeZone> zone(icu::TimeZone::createDefault());
    icu::UnicodeString id;
    zone->getID(id);
    std::string text;
    id.toUTF8String(text);
    return text;
}

}  // namespace kavenda
