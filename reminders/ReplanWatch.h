// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/Instant.h"

#include <chrono>
#include <optional>
#include <string>

namespace kavenda {

class PersianCalendar;

// Decides when a program that runs for weeks must rebuild its reminders: a new local day, a
// wall clock that moved otherwise than the monotonic one (a resume from suspend, a clock set by
// hand), or a new time zone. It is shown the clocks each time the program looks.
class ReplanWatch {
public:
    enum class Change { none, newDay, clockJump, zone };

    // Differences between the two clocks below this are drift, not a jump.
    static constexpr std::chrono::seconds jumpThreshold{60};

    explicit ReplanWatch(const PersianCalendar& calendar);

    // The first look only takes note; the calendar's zone is the one it currently follows.
    Change look(Instant wall, std::chrono::steady_clock::duration monotonic);
    // How long until the program should look again: at the latest just past the next midnight.
    std::chrono::milliseconds nextLookIn(Instant wall, std::chrono::milliseconds longest) const;

private:
    struct Seen {
        Instant wall;
        std::chrono::steady_clock::duration monotonic;
        int day;  // year, month and day in one number
        std::string zone;
    };

    int localDay(Instant wall) const;

    const PersianCalendar& calendar_;
    std::optional<Seen> last_;
};

}  // namespace kavenda
