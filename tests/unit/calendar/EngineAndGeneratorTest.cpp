// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "almanac/DayCalendar.h"
#include "calendar/DateTimePersian.h"
#include "desktop/SystemPersianCalendar.h"
#include "tests/support/TehranTime.h"
#include "text/Format.h"

#include <gtest/gtest.h>

namespace kavenda {
namespace {

// The date engine keys the database by the day the clock shows; the generator wrote the
// database's keys, and the program those of the years after the shipped ones, from the
// almanac's own walk through the Persian calendar. Both must name every day
// alike, or from some day on every screen reads the neighbouring day's times.
TEST(EngineAndGenerator, AgreeOnEveryDayOfTheShippedAndTheComputedYears)
{
    const SystemPersianCalendar calendar;
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
}

}  // namespace
}  // namespace kavenda
