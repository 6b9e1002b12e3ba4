// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

// One single-row query through MyDB, which opens and closes the file on every call, beside
// the same query on a connection held open: the ratio is the price of open-per-call.
#include "data/MyDB.h"
#include "data/Statements.h"
#include "tests/support/FixedPaths.h"
#include "tests/support/FixtureDatabase.h"
#include "tests/support/RecordingLog.h"
#include "tests/support/TempFolder.h"
#include "text/Format.h"

#include <benchmark/benchmark.h>
#include <sqlite3.h>

namespace kavenda {
namespace {

struct FixtureDb {
    FixtureDb() : paths(temp.path() / "documents", temp.path() / "resources")
    {
        test::buildFixtureDatabase(paths.resourceFolder());
    }
    test::TempFolder temp;
    FixedPaths paths;
    test::RecordingLog log;
};

void SingleRowThroughMyDB(benchmark::State& state)
{
    FixtureDb fixture;
    MyDB db("Icons", fixture.paths, fixture.log);
    for (auto _ : state)
        benchmark::DoNotOptimize(db.ExecuteScaler(sql::occasionTime));
}
BENCHMARK(SingleRowThroughMyDB);

void SingleRowOnOpenConnection(benchmark::State& state)
{
    FixtureDb fixture;
    MyDB db("Icons", fixture.paths, fixture.log);
    sqlite3* connection = nullptr;
    sqlite3_open(db.dbPath().c_str(), &connection);
    const std::string text(sql::occasionTime);
    for (auto _ : state) {
        sqlite3_stmt* statement = nullptr;
        sqlite3_prepare_v2(connection, text.c_str(), -1, &statement, nullptr);
        std::string value;
        if (sqlite3_step(statement) == SQLITE_ROW)
            value = reinterpret_cast<const char*>(sqlite3_column_text(statement, 0));
        sqlite3_finalize(statement);
        benchmark::DoNotOptimize(value);
    }
    sqlite3_close(connection);
}
BENCHMARK(SingleRowOnOpenConnection);

}  // namespace
}  // namespace kavenda
