// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "data/MyDB.h"

#include "data/DataFolderLock.h"
#include "data/DatabaseCheck.h"
#include "data/IntValue.h"
#include "data/NameMatching.h"
#include "tests/support/FixtureDatabase.h"

#include <sqlite3.h>

#include <chrono>
#include <csignal>
#include <fstream>
#include <functional>
#include <optional>
#include <thread>
#include <tuple>

#include <sys/resource.h>

namespace kavenda {
namespace {

namespace fs = std::filesystem;

class MyDBTest : public test::WorkingCopy {
protected:
    fs::path resource() const { return paths.resourceFolder() / "Icons"; }
};

TEST_F(MyDBTest, ConvertsValuesByStorageClass)
{
    const RowSet rows = db.run("SELECT 42 AS i, 'تهران' AS t, NULL AS z, 2.5 AS r, x'414243' AS b, "
                               "4294967297 AS wrap, 2147483648 AS high, 1 AS d, 'later' AS d");
    ASSERT_EQ(rows.size(), 1u);
    // Integers keep their low 32 bits, read as signed; of two columns of a name the later wins.
    const Row expected{{"i", "42"},   {"t", "تهران"},          {"z", ""},     {"r", "2.5"}, {"b", "ABC"},
                       {"wrap", "1"}, {"high", "-2147483648"}, {"d", "later"}};
    EXPECT_EQ(rows[0], expected);
    EXPECT_EQ(db.columnList(), (std::vector<std::string>{"i", "t", "z", "r", "b", "wrap", "high", "d", "d"}));
    EXPECT_EQ(db.ExecuteScaler("SELECT StateID FROM tStates WHERE StateID > 1000"), std::nullopt);
    EXPECT_EQ(db.ExecuteScaler("SELECT Description, Date FROM tEvents WHERE Date = 920229"), "");
    EXPECT_EQ(MyDB::getValue(rows, 0, "Nothing"), std::nullopt);
    EXPECT_TRUE(log.lines.empty());
}

TEST_F(MyDBTest, FailuresAreToldAndOnlyThoseThatDoNotCompileAreLogged)
{
    ASSERT_TRUE(
        db.ExecuteNonQuery("INSERT INTO tSelectedStates VALUES(32, 1); INSERT INTO tSelectedStates VALUES(33, 2)"));
    EXPECT_EQ(db.ExecuteScaler("SELECT COUNT(*) FROM tSelectedStates"), "1") << "only the first statement runs";
    EXPECT_FALSE(db.ExecuteNonQuery("INSERT INTO tSelectedStates VALUES(32, 2)")) << "a constraint violated";
    EXPECT_FALSE(db.ExecuteNonQuery("SELECT * FROM tSetting")) << "a statement that yields a row";
    EXPECT_TRUE(db.run("SELECT Name FROM tNowhere").empty());
    EXPECT_TRUE(db.columnList().empty());
    EXPECT_EQ(db.ExecuteScaler("SELEC 1"), std::nullopt);
    EXPECT_TRUE(log.lines.empty()) << "queries fail quietly";
    EXPECT_FALSE(db.ExecuteNonQuery("INSERT INTO tStates(Name, ParentID, IsCenter) VALUES('Shah's', 1, 0)"));
    ASSERT_EQ(log.lines.size(), 1u);
    EXPECT_NE(log.lines[0].find("syntax error"), std::string::npos) << log.lines[0];
}

TEST_F(MyDBTest, FirstUseCopiesTheResourceAndLaterUsesNeverOverwrite)
{
    EXPECT_EQ(db.dbPath(), (paths.documentsFolder() / "Icons").string());
    EXPECT_TRUE(db.ExecuteNonQuery("UPDATE tSetting SET Item6=4"));
    MyDB again("Icons", paths, log);
    EXPECT_EQ(again.ExecuteScaler("SELECT Item6 FROM tSetting"), "4");
    // The working copy, and the lock file under which it was made.
    EXPECT_EQ(std::distance(fs::directory_iterator(paths.documentsFolder()), fs::directory_iterator()), 2);
    EXPECT_TRUE(fs::exists(paths.documentsFolder() / DataFolderLock::fileName));

    // Opening again closes the handle it replaces.
    const auto openFiles = [] {
        return std::distance(fs::directory_iterator("/proc/self/fd"), fs::directory_iterator());
    };
    const auto before = openFiles();
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(again.loadDB(), 0);
    EXPECT_EQ(again.ExecuteScaler("SELECT COUNT(*) FROM tSetting"), "1");
    EXPECT_EQ(openFiles(), before);
}

// A working copy deleted later, one that cannot be opened, and no resource to copy from: empty
// results, writes refused and logged, and the program goes on.
TEST_F(MyDBTest, AMissingOrUnopenableFileYieldsEmptyResults)
{
    const auto yieldsNothing = [this](MyDB& broken, const char* what) {
        log.lines.clear();
        EXPECT_TRUE(broken.run("SELECT * FROM tSetting").empty()) << what;
        EXPECT_EQ(broken.ExecuteScaler("SELECT COUNT(*) FROM tSetting"), std::nullopt) << what;
        EXPECT_FALSE(broken.ExecuteNonQuery("UPDATE tSetting SET Item6=1")) << what;
        EXPECT_EQ(log.lines.size(), 1u) << what;
    };
    fs::remove(db.dbPath());
    yieldsNothing(db, "deleted");
    fs::remove(db.dbPath());
    fs::create_directory(db.dbPath());
    MyDB folder("Icons", paths, log);
    yieldsNothing(folder, "a folder in its place");
    fs::remove_all(paths.documentsFolder());
    fs::remove(resource());
    MyDB none("Icons", paths, log);
    yieldsNothing(none, "no resource");
}

TEST_F(MyDBTest, ACopyCutShortLeavesNoFile)
{
    fs::remove_all(paths.documentsFolder());
    // Pad the resource so the copy cannot finish under a small file size limit.
    std::ofstream(resource(), std::ios::app | std::ios::binary) << std::string(256 * 1024, '\0');
    rlimit saved{};
    getrlimit(RLIMIT_FSIZE, &saved);
    rlimit small = saved;
    small.rlim_cur = 64 * 1024;
    auto previous = std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &small);
    bool copied = true;
    std::error_code cause;
    {
        MyDB cut("Icons", paths, log);
        copied = cut.copyDB();
        cause = cut.copyError();
    }
    setrlimit(RLIMIT_FSIZE, &saved);
    std::signal(SIGXFSZ, previous);

    EXPECT_FALSE(copied);
    EXPECT_EQ(cause, std::errc::file_too_large) << cause.message();
    for (const auto& entry : fs::directory_iterator(paths.documentsFolder()))
        EXPECT_EQ(entry.path().filename(), DataFolderLock::fileName);

    MyDB whole("Icons", paths, log);
    EXPECT_EQ(fs::file_size(whole.dbPath()), fs::file_size(resource()));
}

TEST_F(MyDBTest, ATransactionKeepsAllItsStatementsOrNone)
{
    EXPECT_FALSE(db.inTransaction([this] {
        return db.ExecuteNonQuery("INSERT INTO tSelectedStates VALUES(32, 0)")
            && db.ExecuteNonQuery("INSERT INTO nowhere VALUES(1)");
    }));
    EXPECT_EQ(scalar("SELECT COUNT(*) FROM tSelectedStates"), "0") << "the first insert was taken back";
    EXPECT_TRUE(db.inTransaction([this] {
        return db.ExecuteNonQuery("INSERT INTO tSelectedStates VALUES(32, 0)")
            && scalar("SELECT COUNT(*) FROM tSelectedStates") == "1"
            && db.ExecuteNonQuery("INSERT INTO tSelectedStates VALUES(33, 1)");
    }));
    EXPECT_EQ(scalar("SELECT COUNT(*) FROM tSelectedStates"), "2");
}

TEST_F(MyDBTest, AWriterThatHoldsTheFileAMomentIsWaitedFor)
{
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
    EXPECT_TRUE(db.inTransaction([this] { return db.ExecuteNonQuery("UPDATE tSelectedStates SET Ordering = 1"); }));
    release.join();
    sqlite3_close(other);
    EXPECT_EQ(scalar("SELECT COUNT(*) FROM tSelectedStates"), "2");
}

TEST(DatabaseCheck, AShippedDatabaseThatCannotServeIsNamed)
{
    // clang-format off
    const std::pair<const char*, std::function<void(const fs::path&)>> damages[] = {
        {"whole", [](const fs::path&) {}},
        {"missing", [](const fs::path& file) { fs::remove(file); }},
        {"a folder", [](const fs::path& file) { fs::remove(file); fs::create_directory(file); }},
        {"empty", [](const fs::path& file) { std::ofstream{file}; }},
        {"not a database", [](const fs::path& file) { std::ofstream(file) << std::string(4096, 'x'); }},
        {"a table short", [](const fs::path& file) { test::execSql(file, "DROP VIEW vTimes"); }},
    };
    // clang-format on
    for (const auto& [what, damage] : damages) {
        test::TempFolder folder;
        const fs::path file = test::buildFixtureDatabase(folder.path());
        damage(file);
        const auto problem = shippedDatabaseProblem(file);
        ASSERT_EQ(problem.has_value(), what != std::string("whole")) << what;
        if (!problem)
            continue;
        EXPECT_NE(problem->logLine.find(file.string() + "; install the program again"), std::string::npos) << what;
        EXPECT_NE(problem->message.find(file.string()), std::string::npos) << what;
        EXPECT_NE(problem->message.find("دوباره نصب"), std::string::npos) << what;
    }
}

TEST(IntValue, ReadsLeadingDigitsLikeThePlatform)
{
    // clang-format off
    const std::pair<const char*, int> cases[] = {{"15", 15},  {"4:35", 4}, {"", 0},   {"abc", 0},
                                                 {"  -3", -3}, {"+7x", 7},  {"-", 0},  {"08", 8},
                                                 {"99999999999", 2147483647}, {"-99999999999", -2147483647 - 1}};
    // clang-format on
    for (const auto& [text, value] : cases)
        EXPECT_EQ(intValue(text), value) << '"' << text << '"';
}

constexpr const char* joiner = "\u200C";

TEST(NameMatching, MatchesAsLikeDoesWithoutMindingNonJoiners)
{
    const std::string withJoiner = std::string("خرم") + joiner + "آباد";
    // clang-format off
    const std::tuple<std::string, std::string, bool> cases[] = {
        {"%%", "تهران", true},
        {"%هرا", "تهران", false},
        {"ته%", "تهران", true},
        {"ت_ران", "تهران", true},     // "_" is one letter, not one byte
        {"%ABC%", "xabcx", true},      // Latin letters in either case
        {"%ي%", "ی", false},           // Arabic and Persian yeh stay different letters
        {"%a%b%c", "aXbXbc", true},    // a later try of a "%" after a first one failed
        {"%خرمآباد%", withJoiner, true},
        {"%" + withJoiner + "%", "خرمآباد", true},
        {std::string("%خرم") + joiner + "%", "شهر خرمآباد", true},
        {"%خرم آباد%", withJoiner, false},  // a blank is not a non-joiner
        {"9201__", "9201011", false},
        {std::string("\xFF%"), "\xFF" "x", true},  // a stray byte matches itself
    };
    // clang-format on
    for (const auto& [pattern, text, matches] : cases)
        EXPECT_EQ(likeMatches(pattern, text), matches) << pattern << " / " << text;
}

using NameMatchingInTheDatabase = test::WorkingCopy;

TEST_F(NameMatchingInTheDatabase, EveryLikeMatchesThatWay)
{
    ASSERT_TRUE(db.ExecuteNonQuery(std::string("INSERT INTO tStates(StateID, Name, ParentID) VALUES(9, 'خرم") + joiner
                                   + "آباد', 1)"));
    EXPECT_EQ(db.ExecuteScaler("SELECT StateID FROM tStates WHERE Name LIKE '%خرمآباد%'"), "9");
    EXPECT_EQ(db.ExecuteScaler("SELECT COUNT(*) FROM tEvents WHERE Date LIKE '9202__'"),
              db.ExecuteScaler("SELECT COUNT(*) FROM tEvents WHERE Date BETWEEN 920200 AND 920299"))
        << "integer date keys are matched by their decimal text";
}

}  // namespace
}  // namespace kavenda
