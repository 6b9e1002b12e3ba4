// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "desktop/IcuPersianCalendar.h"

#include <unicode/calendar.h>
#include <unicode/gregocal.h>
#include <unicode/locid.h>
#include <unicode/timezone.h>

namespace kavenda {

struct IcuPersianCalendar::Calendars {
    std::unique_ptr<icu::Calendar> persian;
    std::unique_ptr<icu::Calendar> gregorian;

    Calendars()
    {
        UErrorCode status = U_ZERO_ERROR;
        persian.reset(icu::Calendar::createInstance(icu::Locale("fa_IR@calendar=persian"), status));
        status = U_ZERO_ERROR;
        gregorian.reset(new icu::GregorianCalendar(status));
        if (U_FAILURE(status))
            gregorian.reset();
    }

    // The Persian calendar set to a date and wall-clock time; null when ICU has none.
    icu::Calendar* persianAt(int year, int month, int day, int hour, int minute) const
    {
        if (!persian)
            return nullptr;
        persian->clear();
        persian->set(year, month - 1, day, hour, minute, 0);
        return persian.get();
    }
};

IcuPersianCalendar::IcuPersianCalendar() : calendars_(std::make_unique<Calendars>())
{
}

IcuPersianCalendar::~IcuPersianCalendar() = default;

int IcuPersianCalendar::dayOfYear(int year, int month, int day) const
{
    icu::Calendar* calendar = calendars_->persianAt(year, month, day, 0, 0);
    if (!calendar)
        return 0;
    UErrorCode status = U_ZERO_ERROR;
    const int ordinal = calendar->get(UCAL_DAY_OF_YEAR, status);
    return U_SUCCESS(status) ? ordinal : 0;
}

Instant IcuPersianCalendar::instantOf(int year, int month, int day, int hour, int minute) const
{
    icu::Calendar* calendar = calendars_->persianAt(year, month, day, hour, minute);
    if (!calendar)
        return Instant{};
    UErrorCode status = U_ZERO_ERROR;
    const UDate millis = calendar->getTime(status);
    if (U_FAILURE(status))
        return Instant{};
    return Instant{std::chrono::seconds{static_cast<long long>(millis / 1000.0)}};
}

CivilTime IcuPersianCalendar::gregorianFields(Instant instant) const
{
    icu::Calendar* calendar = calendars_->gregorian.get();
    if (!calendar)
        return CivilTime{};
    UErrorCode status = U_ZERO_ERROR;
    calendar->setTime(static_cast<UDate>(instant.time_since_epoch().count()) * 1000.0, status);
    CivilTime fields;
    fields.year = calendar->get(UCAL_YEAR, status);
    fields.month = calendar->get(UCAL_MONTH, status) + 1;
    fields.day = calendar->get(UCAL_DATE, status);
    fields.hour = calendar->get(UCAL_HOUR_OF_DAY, status);
    fields.minute = calendar->get(UCAL_MINUTE, status);
    fields.second = calendar->get(UCAL_SECOND, status);
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

bool IcuPersianCalendar::followSystemZone()
{
    std::unique_ptr<icu::TimeZone> host(icu::TimeZone::detectHostTimeZone());
    const std::unique_ptr<icu::TimeZone> current(icu::TimeZone::createDefault());
    if (!host || (current && *host == *current))
        return false;
    icu::TimeZone::adoptDefault(host.release());
    // The calendars took the zone that was the default when they were made.
    calendars_ = std::make_unique<Calendars>();
    return true;
}

}  // namespace kavenda
