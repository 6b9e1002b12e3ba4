// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "data/MyDB.h"
#include "data/DataFolderLock.h"
#include "tests/support/FixedPaths.h"
#include "tests/support/FixtureDatabase.h"
#include "tests/support/RecordingLog.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <sqlite3.h>

#include <chrono>
#include <csignal>
#include <fstream>
#include <sys/resource.h>
#include <thread>

namespace kavenda {
namespace {

namespace fs = std::filesystem;

class MyDBTest : public ::testing::Test {
protected:
    MyDBTest() : paths(temp.path() / "documents", temp.path() / "resources")
    {
        test::buildFixtureDatabase(paths.resourceFolder());
    }

    test::TempFolder temp;
    FixedPaths paths;
    test::RecordingLog log;
};

TEST_F(MyDBTest, ConvertsValuesByStorageClass)
{
    MyDB db("Icons", paths, log);
    const RowSet rows = db.run("SELECT 42 AS i, -7 AS n, 'تهران' AS t, NULL AS z, 2.5 AS r, x'414243' AS b, "
                               "4294967297 AS wrap, 2147483648 AS high, 1 AS d, 'later' AS d");
    ASSERT_EQ(rows.size(), 1u);
    const Row& row = rows[0];
    EXPECT_EQ(row.at("i"), "42");
    EXPECT_EQ(row.at("n"), "-7");
    EXPECT_EQ(row.at("t"), "تهران");
    EXPECT_EQ(row.at("z"), "");
    EXPECT_EQ(row.at("r"), "2.5");
    EXPECT_EQ(row.at("b"), "ABC");
    EXPECT_EQ(row.at("wrap"), "1");  // low 32 bits
    EXPECT_EQ(row.at("high"), "-2147483648");  // read as signed
    EXPECT_EQ(row.at("d"), "later");  // the later column of a name wins
    EXPECT_EQ(row.size(), 9u);
    EXPECT_EQ(db.columnList(), (std::vector<std::string>{"i", "n", "t", "z", "r", "b", "wrap", "high", "d", "d"}));
    EXPECT_TRUE(log.lines.empty());
}

TEST_F(MyDBTest, SingleValuesAndMissingOnes)
{
    MyDB db("Icons", paths, log);
    EXPECT_EQ(db.ExecuteScaler("SELECT COUNT(*) AS Count FROM tSelectedStates"), "0");
    EXPECT_EQ(db.ExecuteScaler("SELECT StateID FROM tStates WHERE StateID > 1000"), std::nullopt);
    EXPECT_EQ(db.ExecuteScaler("SELECT Description FROM tEvents WHERE Date = 920103"), std::nullopt);
    EXPECT_EQ(db.ExecuteScaler("SELECT Description, Date FROM tEvents WHERE Date = 920229"), "");
    EXPECT_EQ(db.ExecuteScaler("SELECT Name, StateID FROM tStates ORDER BY StateID DESC"), "اصفهان");

    const RowSet rows =
        db.Execute("SELECT Date, Description FROM tEvents WHERE Date IN (920101, 920229) ORDER BY Date");
    ASSERT_EQ(rows.size(), 2u);
    EXPECT_EQ(MyDB::getValue(rows, 0, "Description"), "عید نوروز@آغاز سال نو");
    EXPECT_EQ(MyDB::getValue(rows, 1, "Description"), "");
    EXPECT_EQ(MyDB::getValue(rows, 1, "Nothing"), std::nullopt);
}

TEST_F(MyDBTest, OnlyTheFirstStatementOfATextRuns)
{
    MyDB db("Icons", paths, log);
    EXPECT_TRUE(db.ExecuteNonQuery(
        "INSERT INTO tSelectedStates(StateID, Ordering)VALUES(32, 1); INSERT INTO tSelectedStates(StateID, Ordering)VALUES(33, 2)"));
    EXPECT_EQ(db.ExecuteScaler("SELECT COUNT(*) FROM tSelectedStates"), "1");
    EXPECT_EQ(db.run("SELECT 1 AS a; SELECT 2 AS a").at(0).at("a"), "1");
}

TEST_F(MyDBTest, WriteFailures)
{
    MyDB db("Icons", paths, log);
    ASSERT_TRUE(db.ExecuteNonQuery("INSERT INTO tSelectedStates(StateID, Ordering)VALUES(32, 1)"));

    // A constraint violation compiled fine: false, and nothing logged.
    EXPECT_FALSE(db.ExecuteNonQuery("INSERT INTO tSelectedStates(StateID, Ordering)VALUES(32, 2)"));
    EXPECT_TRUE(log.lines.empty());

    // A statement that yields a row is not a completed write.
    EXPECT_FALSE(db.ExecuteNonQuery("SELECT * FROM tSetting"));
    EXPECT_TRUE(log.lines.empty());

    // A statement that does not compile logs the library's message once.
    EXPECT_FALSE(db.ExecuteNonQuery("INSERT INTO tStates(Name, ParentID, IsCenter) VALUES('Shah's', 1, 0)"));
    ASSERT_EQ(log.lines.size(), 1u);
    EXPECT_NE(log.lines[0].find("syntax error"), std::string::npos) << log.lines[0];
}

TEST_F(MyDBTest, AQueryThatDoesNotCompileYieldsNothingQuietly)
{
    MyDB db("Icons", paths, log);
    db.run("SELECT Name FROM tStates");
    EXPECT_TRUE(db.run("SELECT Name FROM tNowhere").empty());
    EXPECT_TRUE(db.columnList().empty());
    EXPECT_EQ(db.ExecuteScaler("SELEC 1"), std::nullopt);
    EXPECT_TRUE(log.lines.empty());
}

TEST_F(MyDBTest, FirstUseCopiesTheResourceAndLaterUsesNeverOverwrite)
{
    const fs::path working = paths.documentsFolder() / "Icons";
    EXPECT_FALSE(fs::exists(working));
    {
        MyDB db("Icons", paths, log);
        EXPECT_EQ(db.dbPath(), working.string());
        EXPECT_TRUE(db.isExist());
        EXPECT_TRUE(db.ExecuteNonQuery("UPDATE tSetting SET Item6=4"));
    }
    MyDB again("Icons", paths, log);
    EXPECT_EQ(again.ExecuteScaler("SELECT Item6 FROM tSetting"), "4");
    // The working copy, and the lock file under which it was made.
    EXPECT_EQ(std::distance(fs::directory_iterator(paths.documentsFolder()), fs::directory_iterator()), 2);
    EXPECT_TRUE(fs::exists(paths.documentsFolder() / DataFolderLock::fileName));
}

TEST_F(MyDBTest, OpeningAgainClosesTheHandleItReplaces)
{
    const auto openFiles = [] {
        return std::distance(fs::directory_iterator("/proc/self/fd"), fs::directory_iterator());
    };
    MyDB db("Icons", paths, log);
    const auto before = openFiles();
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(db.loadDB(), 0);
    EXPECT_EQ(db.ExecuteScaler("SELECT COUNT(*) FROM tSetting"), "1");
    EXPECT_EQ(openFiles(), before);
}

TEST_F(MyDBTest, ADeletedWorkingCopyComesBackEmpty)
{
    MyDB db("Icons", paths, log);
    fs::remove(db.dbPath());
    EXPECT_TRUE(db.run("SELECT * FROM tSetting").empty());
    EXPECT_TRUE(db.isExist());
    EXPECT_FALSE(db.ExecuteNonQuery("UPDATE tSetting SET Item6=1"));
    EXPECT_EQ(log.lines.size(), 1u);
}

TEST_F(MyDBTest, AFileThatCannotBeOpenedYieldsEmptyResults)
{
    fs::create_directories(paths.documentsFolder() / "Icons");  // a folder where the file should be
    MyDB db("Icons", paths, log);
    EXPECT_NE(db.loadDB(), 0);
    EXPECT_TRUE(db.run("SELECT 1").empty());
    EXPECT_EQ(db.ExecuteScaler("SELECT 1"), std::nullopt);
    EXPECT_FALSE(db.ExecuteNonQuery("UPDATE tSetting SET Item6=1"));
    EXPECT_EQ(log.lines.size(), 1u);
}

TEST_F(MyDBTest, ACopyCutShortLeavesNoFile)
{
    // Pad the resource so the copy cannot finish under a small file size limit.
    {
        std::ofstream pad(paths.resourceFolder() / "Icons", std::ios::app | std::ios::binary);
        pad << std::string(256 * 1024, '\0');
    }
    rlimit saved{};
    getrlimit(RLIMIT_FSIZE, &saved);
    rlimit small = saved;
    small.rlim_cur = 64 * 1024;
    auto previous = std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &small);
    bool copied = true;
    std::error_code cause;
    {
        MyDB db("Icons", paths, log);
        copied = db.copyDB();
        cause = db.copyError();
    }
    setrlimit(RLIMIT_FSIZE, &saved);
    std::signal(SIGXFSZ, previous);

    EXPECT_FALSE(copied);
    EXPECT_EQ(cause, std::errc::file_too_large) << cause.message();
    // Nothing but the folder's lock file.
    for (const auto& entry : fs::directory_iterator(paths.documentsFolder()))
        EXPECT_EQ(entry.path().filename(), DataFolderLock::fileName);

    // The next start copies the whole file.
    MyDB db("Icons", paths, log);
    EXPECT_EQ(fs::file_size(db.dbPath()), fs::file_size(paths.resourceFolder() / "Icons"));
}

TEST_F(MyDBTest, ATransactionKeepsAllItsStatementsOrNone)
{
    MyDB db("Icons", paths, log);
    const auto count = [&db] { return db.ExecuteScaler("SELECT COUNT(*) FROM tSelectedStates").value_or("?"); };
    EXPECT_FALSE(db.inTransaction([&db] {
        return db.ExecuteNonQuery("INSERT INTO tSelectedStates VALUES(32, 0)")
            && db.ExecuteNonQuery("INSERT INTO nowhere VALUES(1)");
    }));
    EXPECT_EQ(count(), "0") << "the first insert was taken back";
    EXPECT_TRUE(db.inTransaction([&db, &count] {
        return db.ExecuteNonQuery("INSERT INTO tSelectedStates VALUES(32, 0)") && count() == "1"
            && db.ExecuteNonQuery("INSERT INTO tSelectedStates VALUES(33, 1)");
    }));
    EXPECT_EQ(count(), "2");
}

TEST_F(MyDBTest, AWriterThatHoldsTheFileAMomentIsWaitedFor)
{
    MyDB db("Icons", paths, log);
    sqlite3* other = nullptr;
    ASSERT_EQ(sqlite3_open(db.dbPath().c_str(), &other), SQLITE_OK);
    ASSERT_EQ(
        sqlite3_exec(other, "BEGIN IMMEDIATE; INSERT INTO tSelectedStates VALUES(33, 5)", nullptr, nullptr, nullptr),
        SQLITE_OK);
    std::thread release([other] {
        std::this_thread::sleep_for(std::chrono::milliseconds(400));
        sqlite3_exec(other, "COMMIT", nullptr, nullptr, nullptr);
    });
    const auto start = std::chrono::steady_clock::now();
    EXPECT_TRUE(db.ExecuteNonQuery("INSERT INTO tSelectedStates VALUES(32, 0)"));
    EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(300));
    EXPECT_TRUE(db.inTransaction([&db] { return db.ExecuteNonQuery("UPDATE tSelectedStates SET Ordering = 1"); }));
    release.join();
    sqlite3_close(other);
    EXPECT_EQ(db.ExecuteScaler("SELECT COUNT(*) FROM tSelectedStates").value_or("?"), "2");
}

TEST_F(MyDBTest, NoResourceMeansNoCopyAndAnEmptyDatabaseLater)
{
    fs::remove(paths.resourceFolder() / "Icons");
    MyDB db("Icons", paths, log);
    EXPECT_FALSE(db.isExist());
    EXPECT_TRUE(db.run("SELECT * FROM tSetting").empty());
    EXPECT_TRUE(db.isExist());
}

}  // namespace
}  // namespace kavenda
