// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <string>

namespace kavenda::bench {

// Steps a statement through on an open connection, reading every column as MyDB would: the
// floor a statement through MyDB, which opens and closes the file, is measured against.
inline void runOpen(sqlite3* connection, const std::string& text)
{
    sqlite3_stmt* statement = nullptr;
    sqlite3_prepare_v2(connection, text.c_str(), -1, &statement, nullptr);
    while (sqlite3_step(statement) == SQLITE_ROW)
        for (int c = 0; c < sqlite3_column_count(statement); ++c)
            benchmark::DoNotOptimize(sqlite3_column_text(statement, c));
    sqlite3_finalize(statement);
}

}  // namespace kavenda::bench
