// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/CommandLine.h"

#include "cli/MonthCommand.h"
#include "cli/StartClock.h"
#include "desktop/SystemPersianCalendar.h"
#include "tests/support/FixedClock.h"
#include "tests/support/FixedPaths.h"
#include "tests/support/RecordingLog.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>

namespace kavenda {
namespace {

std::variant<CommandLine, std::string> parse(std::vector<const char*> arguments)
{
    arguments.insert(arguments.begin(), "kavenda");
    return CommandLine::parse(static_cast<int>(arguments.size()), arguments.data());
}

TEST(CommandLineTest, ReadsValuesEitherWayAndKeepsQtsOptionsForTheWindow)
{
    const auto parsed = parse({"--data-dir", "/d", "--now=2013-07-01T12:00", "-platform", "offscreen", "--month",
                               "1405-09", "--style=Fusion", "-reverse", "--verbose"});
    ASSERT_TRUE(std::holds_alternative<CommandLine>(parsed)) << std::get<std::string>(parsed);
    const CommandLine& line = std::get<CommandLine>(parsed);
    EXPECT_EQ(line.dataDir, "/d");
    EXPECT_EQ(line.now, "2013-07-01T12:00");
    EXPECT_TRUE(line.month && line.verbose && line.servedByTerminal());
    EXPECT_EQ(line.positional, "1405-09");
    EXPECT_EQ(line.qtArguments, (std::vector<std::string>{"-platform", "offscreen", "--style=Fusion", "-reverse"}));

    const CommandLine window = std::get<CommandLine>(parse({"--background", "--tall", "--screenshot", "a.png"}));
    EXPECT_TRUE(window.background && window.tall && !window.servedByTerminal());
    EXPECT_EQ(window.screenshot, "a.png");
}

TEST(CommandLineTest, RefusesWhatItDoesNotKnowWithTheReason)
{
    const std::pair<std::vector<const char*>, std::string> cases[] = {
        {{"--bogus"}, "Unknown option 'bogus'."},
        {{"-help"}, "Unknown option 'help'."},
        {{"--h"}, "Unknown option 'h'."},
        {{"--data-dir"}, "Missing value after '--data-dir'."},
        {{"--tall=yes"}, "Unexpected value after '--tall=yes'."},
        {{"--month", "1405-09", "1405-10"}, "Unexpected argument '1405-10'."},
    };
    for (const auto& [arguments, problem] : cases) {
        const auto parsed = parse(arguments);
        ASSERT_TRUE(std::holds_alternative<std::string>(parsed)) << problem;
        EXPECT_EQ(std::get<std::string>(parsed), problem);
    }
}

TEST(StartClockTest, ReadsALocalMomentAndRefusesWhatIsNone)
{
    setenv("TZ", "Asia/Tehran", 1);
    using namespace std::chrono;
    // Tehran kept summer time (+04:30) until 2022.
    const Instant noon = sys_days{2013y / 7 / 1} + 7h + 30min;
    EXPECT_EQ(StartClock::parseLocalMoment("2013-07-01T12:00"), noon);
    EXPECT_EQ(StartClock::parseLocalMoment("2013-07-01T12:00:30"), noon + 30s);
    EXPECT_EQ(StartClock::parseLocalMoment("2013-07-01"), noon - 12h);
    for (const char* none : {"2013-02-30T12:00", "2013-07-01T25:00", "2013-07-01T12:60", "2013-07-01T12:00Z",
                             "2013-07-01 12:00", "tomorrow", ""})
        EXPECT_FALSE(StartClock::parseLocalMoment(none)) << none;
    EXPECT_FALSE(StartClock::make("2013-13-01"));
    EXPECT_TRUE(StartClock::make(std::nullopt));
}

namespace fs = std::filesystem;

class MonthCommandTest : public ::testing::Test {
protected:
    // A temporary folder of the test's own, so that what is left there is this test's.
    void SetUp() override
    {
        fs::create_directory(tmp());
        setenv("TMPDIR", tmp().c_str(), 1);
    }
    void TearDown() override { unsetenv("TMPDIR"); }

    fs::path data() const { return temp.path() / "data"; }
    fs::path tmp() const { return temp.path() / "tmp"; }

    test::TempFolder temp;
    FixedPaths paths{data(), KAVENDA_RESOURCE_DIR};
    SystemPersianCalendar calendar;
    FixedClock clock{Instant{}};
    test::RecordingLog log;
};

// Before the first start a month is read without writing in the data folder; after it, a year
// past the working copy is added to it, once.
TEST_F(MonthCommandTest, AMonthIsReadWithoutAWorkingCopyAndAYearPastItIsAddedToIt)
{
    // 1405 is shipped; 1412 lies past the shipped years and is computed on a copy.
    for (const char* month : {"1405-09", "1412-01"}) {
        testing::internal::CaptureStdout();
        EXPECT_EQ(printMonth(month, clock, calendar, paths, log), 0) << month;
        const std::string printed = testing::internal::GetCapturedStdout();
        EXPECT_NE(printed.find("١"), std::string::npos) << printed;
    }
    EXPECT_FALSE(fs::exists(data()));
    EXPECT_TRUE(fs::is_empty(tmp()));
    ASSERT_FALSE(log.lines.empty());
    EXPECT_NE(log.lines.back().find("1412"), std::string::npos) << log.lines.back();

    testing::internal::CaptureStdout();
    fs::create_directories(data());
    fs::copy_file(fs::path(KAVENDA_RESOURCE_DIR) / "Icons", data() / "Icons");
    EXPECT_EQ(printYear("1412", clock, calendar, paths, log), 0);
    // Printed again from what the working copy now holds: nothing is computed twice.
    log.lines.clear();
    EXPECT_EQ(printYear("1412", clock, calendar, paths, log), 0);
    testing::internal::GetCapturedStdout();
    EXPECT_TRUE(log.lines.empty());
}

}  // namespace
}  // namespace kavenda
