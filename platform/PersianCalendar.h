// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/CivilTime.h"
#include "platform/Instant.h"

#include <string>

namespace kavenda {

// The platform's calendars: the Persian one for days and moments, the Gregorian one for
// splitting an instant, both in the device's time zone.
class PersianCalendar {
public:
    virtual ~PersianCalendar() = default;
    // Ordinal of a Persian date within its year; the year is the full year (1392).
    virtual int dayOfYear(int year, int month, int day) const = 0;
    // The moment of a Persian date and wall-clock time.
    virtual Instant instantOf(int year, int month, int day, int hour, int minute) const = 0;
    // The Gregorian fields of an instant.
    virtual CivilTime gregorianFields(Instant instant) const = 0;
    // The device's default time zone, such as "Asia/Tehran".
    virtual std::string timeZoneId() const = 0;
};

}  // namespace kavenda
