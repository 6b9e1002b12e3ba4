// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/Clock.h"

namespace kavenda {

// A clock set to a chosen moment that then runs on with the real one: the device clock of
// --now, so that reminders scheduled for "a minute from now" still come a minute later.
class ShiftedClock final : public Clock {
public:
    ShiftedClock(Instant start, const Clock& real) : real_(real), shift_(start - real.now()) {}
    Instant now() const override { return real_.now() + shift_; }

private:
    const Clock& real_;
    std::chrono::seconds shift_;
};

}  // namespace kavenda
