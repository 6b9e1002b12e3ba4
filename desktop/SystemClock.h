// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/Clock.h"

namespace kavenda {

class SystemClock final : public Clock {
public:
    Instant now() const override;
};

}  // namespace kavenda
