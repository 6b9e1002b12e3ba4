// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/PersianCalendar.h"

#include <memory>

namespace kavenda {

// ICU's Persian and Gregorian calendars in the process's default time zone (TZ). The ICU
// calendars are made once and reused: making one costs more than the conversion itself.
class IcuPersianCalendar final : public PersianCalendar {
public:
    IcuPersianCalendar();
    ~IcuPersianCalendar() override;

    int dayOfYear(int year, int month, int day) const override;
    Instant instantOf(int year, int month, int day, int hour, int minute) const override;
    CivilTime gregorianFields(Instant instant) const override;
    std::string timeZoneId() const override;
    // Takes the system's time zone anew (TZ, else the zone file) as ICU's default zone and
    // this calendar's; true when it changed.
    bool followSystemZone();

private:
    struct Calendars;
    std::unique_ptr<Calendars> calendars_;
};

}  // namespace kavenda
