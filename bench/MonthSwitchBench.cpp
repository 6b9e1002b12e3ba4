// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

// One month switch of the calendar (its query through MyDB, which opens and closes the file, and
// the grid of day buttons) beside the bare month query on a connection held open, the floor.
#include "bench/OpenConnection.h"
#include "calendar/DateTimePersian.h"
#include "data/MyDB.h"
#include "desktop/SystemPersianCalendar.h"
#include "screens/calendar/MonthGrid.h"
#include "tests/support/FixedPaths.h"
#include "tests/support/RecordingLog.h"
#include "tests/support/TehranTime.h"
#include "tests/support/TempFolder.h"

#include <benchmark/benchmark.h>
#include <sqlite3.h>

namespace kavenda {
namespace {

struct Shipped {
    Shipped() : paths(temp.path(), KAVENDA_RESOURCE_DIR), db("Icons", paths, log) {}
    test::TempFolder temp;
    FixedPaths paths;
    test::RecordingLog log;
    MyDB db;
};

// Tir 1405 and Mordad, back and forth: a step and the end of its slide.
void MonthSwitch(benchmark::State& state)
{
    Shipped shipped;
    SystemPersianCalendar calendar;
    const DateTimePersian opened = DateTimePersian::initWithPersianDate("1050410", calendar);
    MonthGrid grid(shipped.db, calendar, opened, DateTimePersian::init(test::tehran(2026, 7, 1, 12), calendar));
    grid.viewDidLoad();
    int step = +1;
    for (auto _ : state) {
        benchmark::DoNotOptimize(grid.changeMonth(step));
        grid.scrollViewDidEndScrollingAnimation();
        step = -step;
    }
    state.counters["buttons"] = static_cast<double>(grid.pages().front().cells.size());
}
BENCHMARK(MonthSwitch);

void MonthQueryOnOpenConnection(benchmark::State& state)
{
    Shipped shipped;
    sqlite3* connection = nullptr;
    sqlite3_open(shipped.db.dbPath().c_str(), &connection);
    const std::string text = MonthGrid::monthStatement(1405, 4);
    for (auto _ : state) {
        bench::runOpen(connection, text);
    }
    sqlite3_close(connection);
}
BENCHMARK(MonthQueryOnOpenConnection);

}  // namespace
}  // namespace kavenda
