// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

// One Persian year of the almanac (31 centres, every day, the occasions) as the top-up
// computes it, beside the floor it is measured against: reading the same year's rows back
// from the database on an open connection.
#include "almanac/Almanac.h"
#include "bench/OpenConnection.h"
#include "data/Connection.h"
#include "data/YearRowsWriter.h"
#include "tests/support/TempFolder.h"

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <filesystem>

namespace kavenda {
namespace {

// A year after the table of official months, so that every month start is predicted.
constexpr int year = 1411;

void ComputeAYear(benchmark::State& state)
{
    for (auto _ : state) {
        almanac::Almanac almanac;  // nothing kept from one year to the next
        benchmark::DoNotOptimize(almanac.year(year));
    }
}
BENCHMARK(ComputeAYear)->Unit(benchmark::kMillisecond);

void ComputeAndWriteAYear(benchmark::State& state)
{
    test::TempFolder temp;
    const std::filesystem::path file = temp.path() / "Icons";
    std::filesystem::copy_file(std::filesystem::path(KAVENDA_RESOURCE_DIR) / "Icons", file);
    for (auto _ : state) {
        almanac::Almanac almanac;
        const almanac::YearRows rows = almanac.year(year);
        Connection db(file);
        db.exec("BEGIN IMMEDIATE");
        writeYearRows(db, rows);
        state.PauseTiming();
        db.exec("ROLLBACK");
        state.ResumeTiming();
    }
}
BENCHMARK(ComputeAndWriteAYear)->Unit(benchmark::kMillisecond);

void ReadAYearBack(benchmark::State& state)
{
    sqlite3* connection = nullptr;
    sqlite3_open((std::filesystem::path(KAVENDA_RESOURCE_DIR) / "Icons").c_str(), &connection);
    // The last shipped year: the same number of rows as a computed one.
    const std::string times = "SELECT * FROM tTimes WHERE Date BETWEEN 1100101 AND 1110101";
    const std::string events = "SELECT * FROM tEvents WHERE Date BETWEEN 1100101 AND 1101230";
    for (auto _ : state) {
        bench::runOpen(connection, times);
        bench::runOpen(connection, events);
    }
    sqlite3_close(connection);
}
BENCHMARK(ReadAYearBack)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace kavenda
