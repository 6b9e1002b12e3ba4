// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/Instant.h"

namespace kavenda::test {

// The instant of a civil date and time in Iran's zone as the tests' TZ=Asia/Tehran sees it.
Instant tehran(int year, int month, int day, int hour = 0, int minute = 0, int second = 0);

}  // namespace kavenda::test
