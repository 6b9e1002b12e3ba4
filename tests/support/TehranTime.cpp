// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/TehranTime.h"

#include <ctime>

namespace kavenda::test {

Instant tehran(int year, int month, int day, int hour, int minute, int second)
{
    std::tm fields{};
    fields.tm_year = year - 1900;
    fields.tm_mon = month - 1;
    fields.tm_mday = day;
    fields.tm_hour = hour;
    fields.tm_min = minute;
    fields.tm_sec = second;
    fields.tm_isdst = -1;
    return Instant{std::chrono::seconds{std::mktime(&fields)}};
}

}  // namespace kavenda::test
