// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "desktop/SystemClock.h"

namespace kavenda {

Instant SystemClock::now() const
{
    return std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now());
}

}  // namespace kavenda
