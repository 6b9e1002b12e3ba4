// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string_view>

namespace kavenda {

// The platform's integer reading of a text: optional leading blanks and sign, then the
// leading decimal digits; 0 when there are none ("4:35" reads 4, "" reads 0).
int intValue(std::string_view text);

}  // namespace kavenda
