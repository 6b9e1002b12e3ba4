// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <chrono>

namespace kavenda {

// An absolute moment, to the second: what the phone platform calls a date.
using Instant = std::chrono::sys_seconds;

}  // namespace kavenda
