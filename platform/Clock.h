// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/Instant.h"

namespace kavenda {

class Clock {
public:
    virtual ~Clock() = default;
    virtual Instant now() const = 0;
};

}  // namespace kavenda
