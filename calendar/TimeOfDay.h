// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string_view>

namespace kavenda {

struct TimeOfDay {
    int hour;
    int minute;
};

// A time text "H:MM" read part by part with the platform's integer reading; a text without
// ":" has minute 0.
TimeOfDay readTimeOfDay(std::string_view text);

}  // namespace kavenda
