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
#include <vector>

namespace kavenda::test {

// A working database with the places of the city screens and helpers to look at the chosen cities.
class CitiesFixture : public ::testing::Test {
protected:
    CitiesFixture() = default;

    void choose(int stateId, int ordering)
    {
        ASSERT_TRUE(db.ExecuteNonQuery("INSERT INTO tSelectedStates VALUES(" + std::to_string(stateId) + ", "
                                       + std::to_string(ordering) + ")"));
    }

    int countOf(const std::string& sql) { return std::stoi(db.ExecuteScaler(sql).value_or("-1")); }

    // "id:ordering" of every chosen city in ascending order.
    std::vector<std::string> orderings()
    {
        std::vector<std::string> found;
        for (const auto& row : db.Execute("SELECT StateID, Ordering FROM tSelectedStates ORDER BY Ordering, StateID"))
            found.push_back(row.at("StateID") + ":" + row.at("Ordering"));
        return found;
    }

    TempFolder temp;
    FixedPaths paths{temp.path() / "documents", temp.path() / "resources"};
    // Written before the working copy is made from it.
    std::filesystem::path resource =
        buildFixtureDatabase(paths.resourceFolder(), {"fixture-data.sql", "offset-city.sql", "cities.sql"});
    RecordingLog log;
    MyDB db{"Icons", paths, log};
};

}  // namespace kavenda::test
