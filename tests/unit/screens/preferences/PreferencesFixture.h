// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "data/MyDB.h"
#include "tests/support/FixedPaths.h"
#include "tests/support/FixtureDatabase.h"
#include "tests/support/RecordingLog.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <string>

namespace kavenda::test {

// A working database with the default settings row, and direct access to that row.
class PreferencesFixture : public ::testing::Test {
protected:
    void store(const std::string& assignments)
    {
        ASSERT_TRUE(db.ExecuteNonQuery("UPDATE tSetting SET " + assignments));
    }

    std::string stored(const std::string& column)
    {
        return db.ExecuteScaler("SELECT " + column + " FROM tSetting").value_or("<none>");
    }

    TempFolder temp;
    FixedPaths paths{temp.path() / "documents", temp.path() / "resources"};
    std::filesystem::path resource = buildFixtureDatabase(paths.resourceFolder());
    RecordingLog log;
    MyDB db{"Icons", paths, log};
};

}  // namespace kavenda::test
