// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "calendar/DateTimePersian.h"

#include "almanac/DayCalendar.h"
#include "desktop/SystemPersianCalendar.h"
#include "tests/support/TehranTime.h"
#include "text/Format.h"

#include <gtest/gtest.h>

#include <tuple>

namespace kavenda {
namespace {

using test::tehran;

const SystemPersianCalendar calendar;

// Days before the years of the database and around the leap days of both calendars (the
// database's years are checked day by day below).
TEST(FromClock, GivesThePersianDateOfTheDay)
{
    // Gregorian year, month and day; Persian year, month, day and day of the year.
    // clang-format off
    const int cases[][7] = {
        {2012, 3, 19, 1390, 12, 29, 365}, {2012, 3, 20, 1391, 1, 1, 1}, {2013, 3, 20, 1391, 12, 30, 366},
        {2016, 2, 29, 1394, 12, 10, 346},
        // The official leap years: 1403 and 1408 have 366 days, 1407 has 365.
        {2025, 3, 20, 1403, 12, 30, 366}, {2029, 3, 19, 1407, 12, 29, 365}, {2029, 3, 20, 1408, 1, 1, 1},
        {2030, 3, 20, 1408, 12, 30, 366}, {2030, 3, 21, 1409, 1, 1, 1},
    };
    // clang-format on
    for (const auto& [gy, gm, gd, year, month, day, dayOfYear] : cases) {
        // Early morning and late evening of the same civil day give the same date.
        for (int hour : {0, 23}) {
            const auto date = DateTimePersian::init(tehran(gy, gm, gd, hour, 30), calendar);
            EXPECT_EQ(std::tuple(date.year(), date.month(), date.day(), date.dayOfYear()),
                      std::tuple(year, month, day, dayOfYear))
                << gy << "-" << gm << "-" << gd << " " << hour << ":30";
        }
    }
}

TEST(FromKey, ReadsSixAndSevenCharacterKeysBackAndWritesThemAgain)
{
    const std::tuple<const char*, int, int, int, int> cases[] = {{"920631", 92, 6, 31, 186},
                                                                 {"911230", 91, 12, 30, 366},
                                                                 {"1000101", 100, 1, 1, 1},
                                                                 {"1050901", 105, 9, 1, 247},
                                                                 {"1031230", 103, 12, 30, 366}};
    for (const auto& [key, year, month, day, dayOfYear] : cases) {
        const auto date = DateTimePersian::initWithPersianDate(key, calendar);
        EXPECT_EQ(std::tuple(date.getPersianDate(), date.year(), date.month(), date.day(), date.dayOfYear()),
                  std::tuple(key, year, month, day, dayOfYear));
    }
}

TEST(FormatHour, AddsTheSummerHourOnlyWhereItWasKept)
{
    // clang-format off
    const std::tuple<const char*, const char*, const char*> cases[] = {
        {"920630", "23:30", "00:30"},   // day 185: still summer, wraps past midnight
        {"920631", "23:30", "23:30"},   // day 186: standard time
        {"920101", "0:0", "01:00"},
        {"1010630", "4:53", "05:53"},   // 1401 still kept summer time
        {"1020101", "4:53", "04:53"},   // from 1402 on it is gone
        // Damaged data: the hour wraps without overflowing.
        {"920101", "2147483647:00", "08:00"},
        {"920801", "2147483647:00", "2147483647:00"},
    };
    // clang-format on
    for (const auto& [key, time, shown] : cases)
        EXPECT_EQ(DateTimePersian::initWithPersianDate(key, calendar).formatHour(time), shown) << key << " " << time;
}

TEST(AddMinutes, WrapsAroundMidnightBothWays)
{
    // clang-format off
    const std::tuple<const char*, const char*, const char*> cases[] = {
        {"23:50", "15", "0:5"}, {"0:10", "-20", "23:50"}, {"12:00", "0", "12:0"},
        {"6:0", "5", "6:5"},    {"4:35", "-3", "4:32"},   {"0:0", "-1440", "0:0"},
        {"1:00", "-3000", "23:0"}, {"22:58", "+90", "0:28"},
        // Damaged data: the extremes of int wrap without overflowing.
        {"2147483647:00", "0", "7:0"}, {"2147483647:59", "2147483647", "10:6"},
        {"-2147483648:0", "-2147483648", "13:52"},
    };
    // clang-format on
    for (const auto& [time, minutes, result] : cases)
        EXPECT_EQ(DateTimePersian::add(time, minutes), result) << time << " " << minutes;
}

// The date engine keys the database by the day the clock shows, the generator by the almanac's
// walk through the calendar: unless both name every day alike, screens read a neighbour's times.
TEST(EngineAndGenerator, AgreeOnEveryDayOfTheShippedAndTheComputedYears)
{
    almanac::DayCalendar days(1392);
    int walked = 0;
    for (almanac::CalendarDay d = days.current(); d.persianYear <= 1440; days.next(), d = days.current()) {
        const std::string key = format("%d%02d%02d", {d.persianYear % 1300, d.persianMonth, d.persianDay});
        for (int hour : {0, 12, 23}) {
            const auto date = DateTimePersian::init(
                test::tehran(d.gregorianYear, d.gregorianMonth, d.gregorianDay, hour, 30), calendar);
            ASSERT_EQ(date.getPersianDate(), key)
                << d.gregorianYear << "-" << d.gregorianMonth << "-" << d.gregorianDay << " " << hour << ":30";
            ASSERT_EQ(date.dayOfYear(), calendar.dayOfYear(d.persianYear, d.persianMonth, d.persianDay)) << key;
        }
        walked += d.persianYear <= 1410;
    }
    // 19 years of which 1395, 1399, 1403 and 1408 are leap.
    EXPECT_EQ(walked, 19 * 365 + 4);
    EXPECT_EQ(almanac::weekday(almanac::julianDayNumber(2024, 4, 12)), almanac::friday);
    EXPECT_EQ(almanac::weekday(almanac::julianDayNumber(2013, 3, 21)), 4);  // Nowruz 1392 was a Thursday
}

}  // namespace
}  // namespace kavenda
