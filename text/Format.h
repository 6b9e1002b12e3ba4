// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <variant>

namespace kavenda {

// One argument of a format text: a signed integer or a text.
using FormatArg = std::variant<long long, std::string_view>;

// The conversions the system's format texts use: "%d", "%D" and "%i" (signed decimal),
// "%02d" and "%02i" (at least two digits, leading zero), "%@" (a text as it is), "%%".
// Arguments are taken in order; a conversion without an argument writes nothing.
std::string format(std::string_view pattern, std::initializer_list<FormatArg> args);

// The same for a statement: a text that lands between single quotes has its quotes doubled,
// so a name such as "Shah's" stays one literal and cannot end the statement early.
std::string formatSql(std::string_view pattern, std::initializer_list<FormatArg> args);

}  // namespace kavenda
