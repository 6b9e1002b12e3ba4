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
    void exec(std::string_view sql) { ASSERT_TRUE(db.ExecuteNonQuery(sql)) << sql; }

    TempFolder temp;
    FixedPaths paths;
    RecordingLog log;
    MyDB db{"Icons", paths, log};
};

}  // namespace kavenda::test
