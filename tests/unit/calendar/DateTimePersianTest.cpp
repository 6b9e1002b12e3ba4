// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "calendar/DateTimePersian.h"
#include "desktop/SystemPersianCalendar.h"
#include "tests/support/TehranTime.h"
#include "text/Format.h"

#include <gtest/gtest.h>

namespace kavenda {
namespace {

using test::tehran;

const SystemPersianCalendar calendar;

struct ClockCase {
    int gy, gm, gd;
    int year, month, day, dayOfYear;
};

class FromClock : public ::testing::TestWithParam<ClockCase> {};

TEST_P(FromClock, GivesThePersianDateOfTheDay)
{
    const ClockCase& c = GetParam();
    // Early morning and late evening of the same civil day give the same date.
    for (int hour : {0, 23}) {
        const auto date = DateTimePersian::init(tehran(c.gy, c.gm, c.gd, hour, 30), calendar);
        EXPECT_EQ(date.year(), c.year);
        EXPECT_EQ(date.month(), c.month);
        EXPECT_EQ(date.day(), c.day);
        if (c.dayOfYear != 0) {
            EXPECT_EQ(date.dayOfYear(), c.dayOfYear);
        }
    }
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(KnownDays, FromClock, ::testing::Values(
    ClockCase{2012, 3, 19, 1390, 12, 29, 365},
    ClockCase{2012, 3, 20, 1391, 1, 1, 1},
    ClockCase{2012, 12, 31, 1391, 10, 11, 287},
    ClockCase{2013, 2, 28, 1391, 12, 10, 346},
    ClockCase{2013, 3, 20, 1391, 12, 30, 366},
    ClockCase{2013, 3, 21, 1392, 1, 1, 1},
    ClockCase{2013, 9, 22, 1392, 6, 31, 186},
    ClockCase{2013, 9, 23, 1392, 7, 1, 187},
    ClockCase{2014, 3, 20, 1392, 12, 29, 365},
    ClockCase{2014, 3, 21, 1393, 1, 1, 1},
    ClockCase{2016, 2, 29, 1394, 12, 10, 0},
    ClockCase{2016, 3, 20, 1395, 1, 1, 1},
    ClockCase{2017, 1, 1, 1395, 10, 12, 288},
    ClockCase{2017, 3, 20, 1395, 12, 30, 366},
    ClockCase{2021, 3, 21, 1400, 1, 1, 1},
    ClockCase{2026, 11, 22, 1405, 9, 1, 247},
    // The official leap years: 1403 and 1408 have 366 days, 1407 has 365.
    ClockCase{2025, 3, 20, 1403, 12, 30, 366},
    ClockCase{2025, 3, 21, 1404, 1, 1, 1},
    ClockCase{2028, 3, 19, 1406, 12, 29, 365},
    ClockCase{2028, 3, 20, 1407, 1, 1, 1},
    ClockCase{2029, 3, 19, 1407, 12, 29, 365},
    ClockCase{2029, 3, 20, 1408, 1, 1, 1},
    ClockCase{2029, 7, 1, 1408, 4, 11, 104},
    ClockCase{2030, 3, 20, 1408, 12, 30, 366},
    ClockCase{2030, 3, 21, 1409, 1, 1, 1}),
    [](const auto& named) { const ClockCase& c = named.param; return format("Tehran_%d_%02d_%02d", {c.gy, c.gm, c.gd}); });
// clang-format on

TEST(FromClockOverYears, ConsecutiveDaysGiveConsecutiveDaysOfTheYear)
{
    auto previous = DateTimePersian::init(tehran(2011, 1, 1, 12), calendar);
    for (int i = 1; i < 366 * 16; ++i) {
        const auto instant = tehran(2011, 1, 1 + i, 12);
        const auto date = DateTimePersian::init(instant, calendar);
        if (date.dayOfYear() == 1) {
            EXPECT_EQ(date.year(), previous.year() + 1) << date.getPersianDate();
            EXPECT_GE(previous.dayOfYear(), 365);
        } else {
            EXPECT_EQ(date.dayOfYear(), previous.dayOfYear() + 1) << date.getPersianDate();
            EXPECT_EQ(date.year(), previous.year());
        }
        // The arithmetic of the clock conversion agrees with the platform's Persian calendar.
        EXPECT_EQ(calendar.dayOfYear(date.year(), date.month(), date.day()), date.dayOfYear()) << date.getPersianDate();
        previous = date;
    }
}

struct KeyCase {
    const char* key;
    int year, month, day, dayOfYear;
};

class FromKey : public ::testing::TestWithParam<KeyCase> {};

TEST_P(FromKey, ReadsTheKeyBackAndWritesItAgain)
{
    const KeyCase& c = GetParam();
    const auto date = DateTimePersian::initWithPersianDate(c.key, calendar);
    EXPECT_EQ(date.year(), c.year);
    EXPECT_EQ(date.month(), c.month);
    EXPECT_EQ(date.day(), c.day);
    EXPECT_EQ(date.dayOfYear(), c.dayOfYear);
    EXPECT_EQ(date.getPersianDate(), c.key);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(SixAndSevenCharacters, FromKey, ::testing::Values(
    KeyCase{"920101", 92, 1, 1, 1},
    KeyCase{"920730", 92, 7, 30, 216},
    KeyCase{"921229", 92, 12, 29, 365},
    KeyCase{"920631", 92, 6, 31, 186},
    KeyCase{"911230", 91, 12, 30, 366},
    KeyCase{"1000101", 100, 1, 1, 1},
    KeyCase{"1050901", 105, 9, 1, 247},
    KeyCase{"1031230", 103, 12, 30, 366}),
    [](const auto& named) { return std::string("Key") + named.param.key; });
// clang-format on

TEST(DateKey, FullAndTwoDigitYearsWriteTheSameKey)
{
    const auto fromClock = DateTimePersian::init(tehran(2013, 3, 21, 9), calendar);
    EXPECT_EQ(fromClock.year(), 1392);
    EXPECT_EQ(fromClock.getPersianDate(), "920101");
    EXPECT_EQ(DateTimePersian::init(tehran(2021, 3, 21, 9), calendar).getPersianDate(), "1000101");
}

struct HourCase {
    const char* key;
    const char* time;
    const char* shown;
};

class FormatHour : public ::testing::TestWithParam<HourCase> {};

TEST_P(FormatHour, AddsTheSummerHourOnlyWhereItWasKept)
{
    const HourCase& c = GetParam();
    EXPECT_EQ(DateTimePersian::initWithPersianDate(c.key, calendar).formatHour(c.time), c.shown)
        << c.key << " " << c.time;
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Days, FormatHour, ::testing::Values(
    HourCase{"920630", "23:30", "00:30"},   // day 185: still summer, wraps past midnight
    HourCase{"920631", "23:30", "23:30"},   // day 186: standard time
    HourCase{"920101", "0:0", "01:00"},
    HourCase{"920801", "4:5", "04:05"},
    HourCase{"1010630", "4:53", "05:53"},   // 1401 still kept summer time
    HourCase{"1020101", "4:53", "04:53"},   // from 1402 on it is gone
    HourCase{"1050301", "12:07", "12:07"},
    // Damaged data: the hour wraps without overflowing.
    HourCase{"920101", "2147483647:00", "08:00"},
    HourCase{"920801", "2147483647:00", "2147483647:00"}));
// clang-format on

TEST(FormatHour, FollowsTheDayOfYearThatTheCallerSets)
{
    auto date = DateTimePersian::initWithPersianDate("920630", calendar);
    date.setDayOfYear(date.dayOfYear() + 1);
    EXPECT_EQ(date.formatHour("5:10"), "05:10");
    date.setDayOfYear(date.dayOfYear() - 1);
    EXPECT_EQ(date.formatHour("5:10"), "06:10");
}

TEST(AddMinutes, WrapsAroundMidnightBothWays)
{
    const struct {
        const char* time;
        const char* minutes;
        const char* result;
        // clang-format off
    } cases[] = {
        {"23:50", "15", "0:5"}, {"0:10", "-20", "23:50"}, {"12:00", "0", "12:0"},
        {"6:0", "5", "6:5"},    {"4:35", "-3", "4:32"},   {"0:0", "-1440", "0:0"},
        {"1:00", "-3000", "23:0"}, {"22:58", "+90", "0:28"},
        // Damaged data: the extremes of int wrap without overflowing.
        {"2147483647:00", "0", "7:0"}, {"2147483647:59", "2147483647", "10:6"},
        {"-2147483648:0", "-2147483648", "13:52"},
    };
    // clang-format on
    for (const auto& c : cases)
        EXPECT_EQ(DateTimePersian::add(c.time, c.minutes), c.result) << c.time << " " << c.minutes;
}

}  // namespace
}  // namespace kavenda
