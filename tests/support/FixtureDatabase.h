// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "data/MyDB.h"
#include "tests/support/FixedPaths.h"
#include "tests/support/RecordingLog.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

namespace kavenda::test {

// Writes a database file from the shipped schema and the given SQL files (relative to
// tests/fixtures), as the resource "Icons" of a resource folder.
std::filesystem::path buildFixtureDatabase(const std::filesystem::path& folder,
                                           std::initializer_list<std::string_view> dataFiles = {"fixture-data.sql"});

// Runs SQL text on a database file directly, bypassing MyDB; throws on error.
void execSql(const std::filesystem::path& file, std::string_view sql);

// The working copy of a first start in a fresh folder, made from a database of the given
// fixture files or, given none, from the generated one of the build.
class WorkingCopy : public ::testing::Test {
protected:
    explicit WorkingCopy(std::initializer_list<std::string_view> dataFiles = {"fixture-data.sql"})
        : paths(temp.path() / "documents",
                dataFiles.size() == 0 ? std::filesystem::path(KAVENDA_RESOURCE_DIR)
                                      : buildFixtureDatabase(temp.path() / "resources", dataFiles).parent_path())
    {
    }

    std::string scalar(std::string_view sql) { return db.ExecuteScaler(sql).value_or("(none)"); }
    int count(std::string_view sql) { return std::stoi(db.ExecuteScaler(sql).value_or("-1")); }
    void exec(std::string_view sql) { ASSERT_TRUE(db.ExecuteNonQuery(sql)) << sql; }
    void setSettings(const std::string& assignments) { exec("UPDATE tSetting SET " + assignments); }
    std::string setting(int item) { return scalar("SELECT Item" + std::to_string(item) + " FROM tSetting"); }
    // Every row the queries give as "column=value;" text, to compare before and after.
    std::string rowsText(std::initializer_list<std::string_view> queries)
    {
        std::string text;
        for (std::string_view sql : queries)
            for (const Row& row : db.Execute(sql))
                for (const auto& [column, value] : row)
                    text += column + "=" + value + ";";
        return text;
    }
    // The cities in list order, numbered on from `ordering`.
    void choose(std::initializer_list<int> stateIds, int ordering = 0)
    {
        for (int id : stateIds)
            exec("INSERT INTO tSelectedStates VALUES(" + std::to_string(id) + ", " + std::to_string(ordering++) + ")");
    }

    TempFolder temp;
    FixedPaths paths;
    RecordingLog log;
    MyDB db{"Icons", paths, log};
};

}  // namespace kavenda::test
