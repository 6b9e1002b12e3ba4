// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/Clock.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace kavenda {

// The device clock of a start: the system's, or one that runs on from --now's local moment.
class StartClock {
public:
    // "YYYY-MM-DD" or "YYYY-MM-DDTHH:MM[:SS]" in the local time zone; none when it is not one.
    static std::optional<Instant> parseLocalMoment(std::string_view text);
    // None when `now` is given and is no moment.
    static std::unique_ptr<Clock> make(const std::optional<std::string>& now);
};

}  // namespace kavenda
