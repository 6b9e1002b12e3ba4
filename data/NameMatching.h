// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string_view>

struct sqlite3;

namespace kavenda {

// LIKE as SQLite has it (ASCII letters in either case, "%" any run, "_" one character), except
// that zero-width non-joiners count on neither side: one person writes "خرم‌آباد" with it and
// another types "خرمآباد" without, and both mean the same place.
bool likeMatches(std::string_view pattern, std::string_view text);

// Makes every LIKE of this connection match as likeMatches does.
void installNameMatching(sqlite3* database);

}  // namespace kavenda
