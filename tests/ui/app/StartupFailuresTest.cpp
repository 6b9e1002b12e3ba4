// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/FileText.h"
#include "tests/support/FixtureDatabase.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <functional>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace kavenda {
namespace {

namespace fs = std::filesystem;

struct Outcome {
    int status;
    std::string out, err;
    bool operator==(const Outcome&) const = default;
    friend std::ostream& operator<<(std::ostream& o, const Outcome& r)
    {
        return o << "status " << r.status << ", out \"" << r.out << "\", err \"" << r.err << '"';
    }
};

class StartupFailures : public ::testing::Test {
protected:
    fs::path data() const { return temp.path() / "data"; }
    fs::path working() const { return data() / "Icons"; }
    std::string dataDir() const { return "--data-dir '" + data().string() + "' "; }

    // The real program, as a person or a script starts it, in Iran's zone and a folder of its own,
    // with the environment changed (env's own syntax: -u NAME first, then NAME=value).
    Outcome run(const std::string& options, const std::string& environment = "",
                const fs::path& program = KAVENDA_PROGRAM) const
    {
        const fs::path cwd = temp.path() / "cwd", out = temp.path() / "out", err = temp.path() / "err";
        fs::create_directories(cwd);
        const int status = std::system(("cd '" + cwd.string() + "' && env " + environment
                                        + " TZ=Asia/Tehran QT_QPA_PLATFORM=offscreen '" + program.string() + "' "
                                        + options + " >'" + out.string() + "' 2>'" + err.string() + "' </dev/null")
                                           .c_str());
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, test::fileText(out), test::fileText(err)};
    }

    // A small file system of its own at the folder, for as long as the test runs.
    bool mounted(const fs::path& folder, const std::string& options)
    {
        fs::create_directories(folder);
        const std::string mount =
            "mount -t tmpfs -o " + options + " kavenda-test '" + folder.string() + "' 2>/dev/null";
        if (::geteuid() != 0 || std::system(mount.c_str()) != 0)
            return false;
        mounts.push_back(folder);
        return true;
    }
    void TearDown() override
    {
        for (const fs::path& folder : mounts)
            std::system(("umount '" + folder.string() + "'").c_str());
    }

    std::vector<fs::path> mounts;
    test::TempFolder temp;
};

TEST_F(StartupFailures, AShippedDatabaseThatIsMissingOrUnreadableStopsAFirstStartAndCreatesNothing)
{
    // clang-format off
    const std::pair<const char*, std::function<void(const fs::path&)>> installs[] = {
        {"missing", [](const fs::path&) {}},
        {"not a database", [](const fs::path& resources) { std::ofstream(resources / "Icons") << "<html>404</html>"; }},
        {"a folder", [](const fs::path& resources) { fs::create_directory(resources / "Icons"); }},
    };
    // clang-format on
    // The program installed beside a resource folder of our making.
    const fs::path install = temp.path() / "install", program = install / "bin" / "kavenda";
    for (const auto& [what, fill] : installs) {
        fs::create_directories(program.parent_path());
        fs::create_directories(install / "resources");
        fs::copy_file(KAVENDA_PROGRAM, program);
        fill(install / "resources");
        const fs::path looked = install / "resources" / "Icons";
        EXPECT_EQ(run(dataDir() + "--reminders", "", program),
                  (Outcome{1, "",
                           "kavenda: cannot read the program's database " + looked.string()
                               + "; install the program again\n"}))
            << what;
        EXPECT_TRUE(!fs::exists(data()) || fs::is_empty(data())) << what;
        // A start that has its working copy does not read the shipped file.
        fs::create_directories(data());
        fs::copy_file(fs::path(KAVENDA_RESOURCE_DIR) / "Icons", working());
        EXPECT_EQ(run(dataDir() + "--reminders", "", program).status, 0) << what;
        fs::remove_all(data());
        fs::remove_all(install);
    }
}

// The command installed without its window module says what is missing instead of failing to start.
TEST_F(StartupFailures, AWindowWithoutItsModuleSaysWhichFileIsMissing)
{
    const fs::path install = temp.path() / "install", program = install / "bin" / "kavenda";
    fs::create_directories(program.parent_path());
    fs::copy_file(KAVENDA_PROGRAM, program);
    const Outcome result = run(dataDir(), "", program);
    EXPECT_EQ(result.status, 1);
    const fs::path module = install / "lib" / "kavenda" / "kavenda_window.so";
    EXPECT_EQ(result.err.rfind("kavenda: cannot open the window: " + module.string() + ": ", 0), 0u) << result.err;
    EXPECT_NE(result.err.find("; install the program again\n"), std::string::npos) << result.err;
    EXPECT_FALSE(fs::exists(data()));
}

TEST_F(StartupFailures, AnEmptyWorkingCopyIsReplacedAndLeftoversRemoved)
{
    fs::create_directories(data());
    std::ofstream(working()).close();
    std::ofstream(data() / "Icons.partial-777") << "half";
    const Outcome result = run(dataDir() + "--reminders");
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(test::fileText(working()), test::fileText(fs::path(KAVENDA_RESOURCE_DIR) / "Icons"));
    EXPECT_FALSE(fs::exists(data() / "Icons.partial-777"));
}

TEST_F(StartupFailures, RemindersWithoutAChosenCitySaySoAndStillSucceed)
{
    fs::create_directories(data());
    fs::copy_file(fs::path(KAVENDA_RESOURCE_DIR) / "Icons", working());
    test::execSql(working(), "INSERT INTO tSelectedStates VALUES(32, 0); UPDATE tSetting SET Item0 = 1;");
    Outcome result = run(dataDir() + "--reminders");
    EXPECT_EQ(result.status, 0);
    EXPECT_NE(result.out, "");
    EXPECT_EQ(result.err.find("no city"), std::string::npos) << result.err;
    test::execSql(working(), "DELETE FROM tSelectedStates");
    EXPECT_EQ(run(dataDir() + "--reminders"),
              (Outcome{0, "", "kavenda: no city is chosen, so nothing is announced; choose one in the options\n"}));
}

TEST_F(StartupFailures, AWorkingCopyWithoutTheTablesIsReportedAndKept)
{
    fs::create_directories(data());
    test::execSql(working(), "CREATE TABLE notes(text); INSERT INTO notes VALUES('mine')");
    const std::string before = test::fileText(working());
    const Outcome result = run(dataDir() + "--reminders");
    EXPECT_EQ(result.status, 1);
    EXPECT_NE(result.err.find("kavenda: the database " + working().string() + " lacks tStates"), std::string::npos)
        << result.err;
    EXPECT_NE(result.err.find("move the file aside"), std::string::npos) << result.err;
    EXPECT_EQ(test::fileText(working()), before);
}

TEST_F(StartupFailures, ADataFolderThatCannotBeMadeIsNamedWithItsCause)
{
    const fs::path home = temp.path() / "home";
    const fs::path file = temp.path() / "notes";
    fs::create_directories(home);
    std::ofstream(file) << "mine";
    const std::string h = "HOME='" + home.string() + "' ";
    const std::string notAFolder = "kavenda: cannot keep the data in " + file.string() + ": it is not a folder\n";
    const std::string noHome = "kavenda: neither HOME nor XDG_DATA_HOME names a folder for the data; set HOME or "
                               "start with --data-dir FOLDER\n";
    // clang-format off
    const struct {
        const char* what;
        std::string environment, options, said;
    } cases[] = {
        {"--data-dir names a file",      "-u XDG_DATA_HOME " + h, "--data-dir '" + file.string() + "'", notAFolder},
        {"XDG_DATA_HOME names a file",   h + "XDG_DATA_HOME='" + file.string() + "'", "", notAFolder},
        {"no HOME and no XDG_DATA_HOME", "-u HOME -u XDG_DATA_HOME", "", noHome},
        {"a relative HOME",              "-u XDG_DATA_HOME HOME=home", "", noHome},
    };
    // clang-format on
    for (const auto& c : cases) {
        EXPECT_EQ(run(c.options + " --reminders", c.environment), (Outcome{1, "", c.said})) << c.what;
        EXPECT_EQ(test::fileText(file), "mine") << c.what;
        EXPECT_TRUE(fs::is_empty(home)) << c.what;
        EXPECT_TRUE(fs::is_empty(temp.path() / "cwd")) << c.what;
    }
}

TEST_F(StartupFailures, ARelativeXdgDataHomeIsIgnoredAsTheRulesSay)
{
    const fs::path home = temp.path() / "home";
    fs::create_directories(home);
    const Outcome result = run("--reminders", "HOME='" + home.string() + "' XDG_DATA_HOME=data");
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_TRUE(fs::exists(home / ".local" / "share" / "kavenda" / "Icons"));
    EXPECT_TRUE(fs::is_empty(temp.path() / "cwd"));
}

TEST_F(StartupFailures, AReadOnlyFolderOrAFullDiskIsNamedAndNothingIsLeft)
{
    const fs::path readOnly = temp.path() / "read-only";
    const fs::path full = temp.path() / "full";
    if (!mounted(readOnly, "ro,size=1m") || !mounted(full, "size=64k"))
        GTEST_SKIP() << "needs root and tmpfs mounts for a read-only folder and a full disk";
    // clang-format off
    const struct {
        const char* what;
        fs::path dataDir;
        fs::path named;
        std::string cause;
    } cases[] = {
        {"a read-only file system", readOnly / "kavenda", readOnly, "it is read-only"},
        {"a full disk",             full,                 full,     "no space is left on its disk"},
        {"a full disk, new folder", full / "kavenda",     full / "kavenda", "no space is left on its disk"},
    };
    // clang-format on
    for (const auto& c : cases) {
        EXPECT_EQ(run("--data-dir '" + c.dataDir.string() + "' --reminders"),
                  (Outcome{1, "", "kavenda: cannot keep the data in " + c.named.string() + ": " + c.cause + "\n"}))
            << c.what;
        EXPECT_TRUE(fs::is_empty(readOnly)) << c.what;
        EXPECT_TRUE(fs::is_empty(full)) << c.what << ": no partial copy, no lock, no folder";
    }
}

}  // namespace
}  // namespace kavenda
