// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/MonthCommand.h"

#include "desktop/SystemPersianCalendar.h"
#include "tests/support/FixedClock.h"
#include "tests/support/FixedPaths.h"
#include "tests/support/RecordingLog.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

namespace kavenda {
namespace {

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

TEST_F(MonthCommandTest, BeforeTheFirstStartAMonthIsReadWithoutWritingInTheDataFolder)
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
}

TEST_F(MonthCommandTest, AYearPastTheWorkingCopyIsAddedToIt)
{
    testing::internal::CaptureStdout();
    ASSERT_EQ(printMonth("1405-09", clock, calendar, paths, log), 0);
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
