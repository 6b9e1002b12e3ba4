// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

// The main screen's day query for one city, and a full reminder rebuild, on the generated
// database: through MyDB (open and close on every call) beside the same work on a connection
// held open, which is the floor.
#include "bench/OpenConnection.h"
#include "data/MyDB.h"
#include "data/Statements.h"
#include "desktop/SystemPersianCalendar.h"
#include "reminders/MyNotification.h"
#include "tests/support/FixedClock.h"
#include "tests/support/FixedPaths.h"
#include "tests/support/RecordingLog.h"
#include "tests/support/RecordingNotificationService.h"
#include "tests/support/ScriptedRandom.h"
#include "tests/support/TehranTime.h"
#include "tests/support/TempFolder.h"
#include "text/Format.h"

#include <benchmark/benchmark.h>
#include <sqlite3.h>

namespace kavenda {
namespace {

constexpr int tehranCentre = 39;

struct Shipped {
    Shipped() : paths(temp.path(), KAVENDA_RESOURCE_DIR), db("Icons", paths, log)
    {
        db.ExecuteNonQuery(formatSql(sql::insertChosenCity, {tehranCentre, 1}));
        db.ExecuteNonQuery("UPDATE tSetting SET Item3 = 10, Item4 = 20, Item5 = 15, Item7 = '08:00'");
    }
    test::TempFolder temp;
    FixedPaths paths;
    test::RecordingLog log;
    MyDB db;
};

void DayQueryThroughMyDB(benchmark::State& state)
{
    Shipped shipped;
    const std::string text = formatSql(sql::dayTimes, {"1050901", tehranCentre});
    for (auto _ : state)
        benchmark::DoNotOptimize(shipped.db.Execute(text));
}
BENCHMARK(DayQueryThroughMyDB);

void DayQueryOnOpenConnection(benchmark::State& state)
{
    Shipped shipped;
    sqlite3* connection = nullptr;
    sqlite3_open(shipped.db.dbPath().c_str(), &connection);
    const std::string text = formatSql(sql::dayTimes, {"1050901", tehranCentre});
    for (auto _ : state)
        bench::runOpen(connection, text);
    sqlite3_close(connection);
}
BENCHMARK(DayQueryOnOpenConnection);

void ReminderRebuildThroughMyDB(benchmark::State& state)
{
    Shipped shipped;
    FixedClock clock(test::tehran(2026, 11, 22, 0, 1));
    SystemPersianCalendar calendar;
    test::RecordingNotificationService notifications;
    test::ScriptedRandom random({0});
    MyNotification scheduler(shipped.db, clock, calendar, notifications, random, shipped.log);
    for (auto _ : state) {
        scheduler.update();
        shipped.log.lines.clear();
    }
    state.counters["records"] = static_cast<double>(notifications.records.size());
}
BENCHMARK(ReminderRebuildThroughMyDB);

void ReminderQueriesOnOpenConnection(benchmark::State& state)
{
    Shipped shipped;
    sqlite3* connection = nullptr;
    sqlite3_open(shipped.db.dbPath().c_str(), &connection);
    const std::string queries[] = {std::string(sql::firstChosenCity), std::string(sql::allSettings),
                                   formatSql(sql::comingOccasions, {"1050901"}),
                                   formatSql(sql::reminderTimes, {"1050901", tehranCentre, tehranCentre})};
    for (auto _ : state)
        for (const std::string& text : queries)
            bench::runOpen(connection, text);
    sqlite3_close(connection);
}
BENCHMARK(ReminderQueriesOnOpenConnection);

}  // namespace
}  // namespace kavenda
