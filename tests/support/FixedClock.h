// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/Clock.h"

namespace kavenda {

// A clock that stands still until it is told otherwise: the device clock of --now and of tests.
class FixedClock final : public Clock {
public:
    explicit FixedClock(Instant instant) : instant_(instant) {}
    Instant now() const override { return instant_; }
    void set(Instant instant) { instant_ = instant; }

private:
    Instant instant_;
};

}  // namespace kavenda
