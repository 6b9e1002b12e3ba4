// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "data/DatabaseCheck.h"
#include "data/DataFolderLock.h"
#include "data/MyDB.h"
#include "tests/support/FileText.h"
#include "tests/support/FixedPaths.h"
#include "tests/support/FixtureDatabase.h"
#include "tests/support/RecordingLog.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <functional>
#include <iterator>
#include <vector>

namespace kavenda {
namespace {

namespace fs = std::filesystem;

void write(const fs::path& file, const std::string& text)
{
    std::ofstream(file, std::ios::binary) << text;
}

class DatabaseCheck : public ::testing::Test {
protected:
    DatabaseCheck() : paths(temp.path() / "documents", temp.path() / "resources")
    {
        shipped = test::buildFixtureDatabase(paths.resourceFolder());
        fs::create_directories(paths.documentsFolder());
    }

    fs::path working() const { return paths.documentsFolder() / "Icons"; }

    test::TempFolder temp;
    FixedPaths paths;
    fs::path shipped;
    test::RecordingLog log;
};

TEST_F(DatabaseCheck, AShippedDatabaseThatCannotServeIsNamed)
{
    // clang-format off
    const std::pair<const char*, std::function<void(const fs::path&)>> damages[] = {
        {"missing", [](const fs::path& file) { fs::remove(file); }},
        {"a folder", [](const fs::path& file) { fs::remove(file); fs::create_directory(file); }},
        {"empty", [](const fs::path& file) { write(file, ""); }},
        {"not a database", [](const fs::path& file) { write(file, std::string(4096, 'x')); }},
        {"no tables", [](const fs::path& file) { fs::remove(file); test::execSql(file, "CREATE TABLE t(x)"); }},
        {"a table short", [](const fs::path& file) { test::execSql(file, "DROP VIEW vTimes"); }},
    };
    // clang-format on
    EXPECT_EQ(shippedDatabaseProblem(shipped), std::nullopt);
    for (const auto& [what, damage] : damages) {
        test::TempFolder folder;
        const fs::path file = test::buildFixtureDatabase(folder.path());
        damage(file);
        const auto problem = shippedDatabaseProblem(file);
        ASSERT_TRUE(problem) << what;
        EXPECT_NE(problem->logLine.find(file.string()), std::string::npos) << what;
        EXPECT_NE(problem->logLine.find("install the program again"), std::string::npos) << what;
        EXPECT_NE(problem->message.find(file.string()), std::string::npos) << what;
        EXPECT_NE(problem->message.find("دوباره نصب"), std::string::npos) << what;
    }
    EXPECT_TRUE(fs::is_empty(paths.documentsFolder()));
}

}  // namespace
}  // namespace kavenda
