// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "data/DatabaseCheck.h"

#include <sqlite3.h>

#include <array>
#include <set>
#include <string_view>

namespace kavenda {

namespace {

constexpr std::array<std::string_view, 6> requiredTables{"tStates", "tSelectedStates", "tTimes",
                                                         "tEvents", "tSetting",        "vTimes"};

// The tables and views the program reads that the file lacks; all of them when the file
// cannot be opened or is no database. Read-only: nothing is created or changed.
std::string missingTables(const std::filesystem::path& file)
{
    std::set<std::string, std::less<>> present;
    sqlite3* database = nullptr;
    if (sqlite3_open_v2(file.c_str(), &database, SQLITE_OPEN_READONLY, nullptr) == SQLITE_OK) {
        sqlite3_stmt* statement = nullptr;
        sqlite3_prepare_v2(database, "SELECT name FROM sqlite_master WHERE type IN ('table', 'view')", -1, &statement,
                           nullptr);
        while (sqlite3_step(statement) == SQLITE_ROW)
            present.emplace(reinterpret_cast<const char*>(sqlite3_column_text(statement, 0)));
        sqlite3_finalize(statement);
    }
    sqlite3_close(database);

    std::string missing;
    for (std::string_view table : requiredTables) {
        if (present.contains(table))
            continue;
        if (!missing.empty())
            missing += ", ";
        missing += table;
    }
    return missing;
}

}  // namespace

std::optional<StartupProblem> shippedDatabaseProblem(const std::filesystem::path& shipped)
{
    if (missingTables(shipped).empty())
        return std::nullopt;
    return StartupProblem{
        "kavenda: cannot read the program's database " + shipped.string() + "; install the program again",
        "پایگاه داده برنامه پیدا نشد یا خوانا نیست:\n" + shipped.string() + "\nبرنامه را دوباره نصب کنید."};
}

std::optional<StartupProblem> workingCopyProblem(const std::filesystem::path& workingCopy)
{
    const std::string missing = missingTables(workingCopy);
    if (missing.empty())
        return std::nullopt;
    return StartupProblem{"kavenda: the database " + workingCopy.string() + " lacks " + missing
                              + "; move the file aside and start again to begin with a fresh copy",
                          "پرونده داده های شما جدول های لازم را ندارد:\n" + workingCopy.string()
                              + "\nآن را به جای دیگری ببرید و برنامه را دوباره باز کنید تا با نسخه تازه ای آغاز شود."};
}

}  // namespace kavenda
