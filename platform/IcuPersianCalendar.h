#pragma once

#include "platform/PersianCalendar.h"

namespace kavenda {

// ICU's Persian and Gregorian calendars in the process's default time zone (TZ).
class IcuPersianCalendar final : public PersianCalendar {
public:
    int dayOfYear(int year, int month, int day) const override;
    Instant instantOf(int year, int month, int day, int hour, int minute) const override;
    CivilTime gregorianFields(Instant instant) const override;
    std::string timeZoneId() const override;
};

}  // namespace kavenda
