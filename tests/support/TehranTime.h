// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/Instant.h"

#include <ctime>

namespace kavenda::test {

// The instant of a civil date and time in Iran's zone as the tests' TZ=Asia/Tehran sees it.
inline Instant tehran(int year, int month, int day, int hour = 0, int minute = 0, int second = 0)
{
    // glibc's order: seconds to years, weekday, day of year, daylight saving (unknown), offset, zone.
    std::tm fields{second, minute, hour, day, month - 1, year - 1900, 0, 0, -1, 0, nullptr};
    return Instant{std::chrono::seconds{std::mktime(&fields)}};
}

}  // namespace kavenda::test
