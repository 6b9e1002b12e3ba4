// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/PersianCalendar.h"

#include <string>

namespace kavenda {

// The Persian calendar in the system's time zone, read by the C library from the system's zone
// data (TZ, else /etc/localtime), as the clock and every other program read it. A moment that a
// change of the clocks skips or repeats is taken as the platforms' calendars take it: a skipped
// wall-clock time with the offset before the change, a repeated one at its later occurrence.
class SystemPersianCalendar final : public PersianCalendar {
public:
    SystemPersianCalendar();

    int dayOfYear(int year, int month, int day) const override;
    Instant instantOf(int year, int month, int day, int hour, int minute) const override;
    CivilTime gregorianFields(Instant instant) const override;
    std::string timeZoneId() const override;
    // Reads the system's time zone anew; true when it changed.
    bool followSystemZone();

private:
    static std::string systemZoneName();

    std::string zone_;
};

}  // namespace kavenda
