#include "data/DatabaseCheck.h"
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

TEST_F(DatabaseCheck, AWorkingCopyWithoutTheTablesIsReportedAndKept)
{
    test::execSql(working(), "CREATE TABLE notes(text); INSERT INTO notes VALUES('mine')");
    const std::string before = test::fileText(working());
    {
        MyDB db("Icons", paths, log);
        const auto problem = workingCopyProblem(db.dbPath());
        ASSERT_TRUE(problem);
        EXPECT_EQ(problem->logLine,
                  "kavenda: the database " + working().string()
                      + " lacks tStates, tSelectedStates, tTimes, tEvents, tSetting, vTimes;"
                        " move the file aside and start again to begin with a fresh copy");
        EXPECT_NE(problem->message.find(working().string()), std::string::npos);
        EXPECT_NE(problem->message.find("به جای دیگری ببرید"), std::string::npos);
    }
    EXPECT_EQ(test::fileText(working()), before);

    // Moved aside, the next start begins afresh.
    fs::rename(working(), paths.documentsFolder() / "Icons.old");
    MyDB db("Icons", paths, log);
    EXPECT_EQ(workingCopyProblem(db.dbPath()), std::nullopt);
    EXPECT_EQ(test::fileText(paths.documentsFolder() / "Icons.old"), before);
}

TEST_F(DatabaseCheck, OnlyAnEmptyWorkingCopyIsReplaced)
{
    write(working(), "");
    {
        MyDB db("Icons", paths, log);
        EXPECT_EQ(db.ExecuteScaler("SELECT COUNT(*) FROM tSetting"), "1");
        EXPECT_EQ(workingCopyProblem(db.dbPath()), std::nullopt);
        EXPECT_TRUE(db.ExecuteNonQuery("UPDATE tSetting SET Item6 = 5"));
    }
    const std::string chosen = test::fileText(working());
    EXPECT_NE(chosen, test::fileText(shipped));
    MyDB again("Icons", paths, log);
    EXPECT_EQ(test::fileText(working()), chosen);

    // Not a database at all, but not empty either: it may be the user's, so it stays.
    write(working(), "something of the user's");
    MyDB third("Icons", paths, log);
    EXPECT_EQ(test::fileText(working()), "something of the user's");
    EXPECT_TRUE(workingCopyProblem(third.dbPath()));
}

TEST_F(DatabaseCheck, CopiesLeftByAnEarlierStartAreRemoved)
{
    write(paths.documentsFolder() / "Icons.partial-4242", "half a copy");
    write(paths.documentsFolder() / "Icons.partial-1", "");
    write(paths.documentsFolder() / "Icons.old", "the user's");
    MyDB db("Icons", paths, log);
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(paths.documentsFolder()))
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    EXPECT_EQ(names, (std::vector<std::string>{"Icons", "Icons.old"}));
    EXPECT_EQ(test::fileText(working()), test::fileText(shipped));
}

}  // namespace
}  // namespace kavenda
