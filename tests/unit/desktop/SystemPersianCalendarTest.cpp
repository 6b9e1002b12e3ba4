// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

// The program's Persian calendar against ICU's, the platforms' reference: every day of five
// centuries, and every half hour around each change of the clocks in zones that had them.
#include "desktop/SystemPersianCalendar.h"
#include "almanac/DayCalendar.h"

#include <gtest/gtest.h>
#include <unicode/calendar.h>
#include <unicode/timezone.h>

#include <cstdlib>
#include <ctime>
#include <memory>
#include <tuple>

namespace kavenda {
namespace {

int get(const icu::Calendar& calendar, UCalendarDateFields field)
{
    UErrorCode status = U_ZERO_ERROR;
    return calendar.get(field, status);
}

std::unique_ptr<icu::Calendar> icuCalendar(const char* locale, const char* zone)
{
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::Calendar> calendar(
        icu::Calendar::createInstance(icu::TimeZone::createTimeZone(zone), icu::Locale(locale), status));
    EXPECT_TRUE(U_SUCCESS(status));
    return calendar;
}

// Both libraries in one zone for the length of a test; the tests' own zone again after it.
struct InZone {
    explicit InZone(const char* zone) { use(zone); }
    ~InZone() { use("Asia/Tehran"); }
    static void use(const char* zone)
    {
        ::setenv("TZ", zone, 1);
        ::tzset();
        icu::TimeZone::adoptDefault(icu::TimeZone::createTimeZone(zone));
    }
};

TEST(SystemPersianCalendar, EveryDayOfFiveCenturiesIsIcusDay)
{
    auto persian = icuCalendar("fa_IR@calendar=persian", "GMT");
    auto gregorian = icuCalendar("en_US@calendar=gregorian", "GMT");
    persian->clear();
    persian->set(1200, 0, 1, 12, 0, 0);
    UErrorCode status = U_ZERO_ERROR;
    int wrong = 0;
    for (almanac::DayCalendar days(1200); days.current().persianYear < 1700; days.next()) {
        const almanac::CalendarDay d = days.current();
        gregorian->setTime(persian->getTime(status), status);
        const bool same = std::tuple(d.persianYear, d.persianMonth, d.persianDay, d.gregorianYear, d.gregorianMonth,
                                     d.gregorianDay, d.julianDayNumber)
            == std::tuple(get(*persian, UCAL_YEAR), get(*persian, UCAL_MONTH) + 1, get(*persian, UCAL_DATE),
                          get(*gregorian, UCAL_YEAR), get(*gregorian, UCAL_MONTH) + 1, get(*gregorian, UCAL_DATE),
                          almanac::persianJulianDayNumber(d.persianYear, d.persianMonth, d.persianDay));
        if (!same && ++wrong < 5)
            ADD_FAILURE() << d.persianYear << "-" << d.persianMonth << "-" << d.persianDay << " is " << d.gregorianYear
                          << "-" << d.gregorianMonth << "-" << d.gregorianDay;
        persian->add(UCAL_DATE, 1, status);
    }
    ASSERT_TRUE(U_SUCCESS(status));
    EXPECT_EQ(wrong, 0);
}

TEST(SystemPersianCalendar, DaysOfTheYearRunOnPastAShortEsfandAsIcusDo)
{
    SystemPersianCalendar calendar;
    // 1403 and 1408 are leap; 30 Esfand 1407 is the next year's first day.
    const int cases[][4] = {
        {1403, 12, 30, 366}, {1407, 12, 30, 1}, {1408, 12, 30, 366}, {1404, 7, 1, 187}, {1404, 13, 1, 1}};
    for (const auto& [year, month, day, dayOfYear] : cases)
        EXPECT_EQ(calendar.dayOfYear(year, month, day), dayOfYear) << year << "-" << month << "-" << day;
}

// A new zone counts from the moment the calendar takes it, as a new /etc/localtime counts once its
// watch tells: a reminder is never computed in one zone and named for another.
TEST(SystemPersianCalendar, NamesTheZoneItComputesInUntilItFollowsTheSystem)
{
    SystemPersianCalendar calendar;
    ::setenv("TZ", "Asia/Dubai", 1);
    EXPECT_EQ(calendar.timeZoneId(), "Asia/Tehran");
    EXPECT_TRUE(calendar.followSystemZone());
    EXPECT_EQ(calendar.timeZoneId(), "Asia/Dubai");
    InZone::use("Asia/Tehran");
}

// Every half hour of the days around each change of the clocks, read both ways.
TEST(SystemPersianCalendar, MomentsAroundEachChangeOfTheClocksAreIcus)
{
    for (const char* zone : {"Asia/Tehran", "America/New_York", "Australia/Lord_Howe"}) {
        const InZone in(zone);
        SystemPersianCalendar calendar;
        auto persian = icuCalendar("fa_IR@calendar=persian", zone);
        auto gregorian = icuCalendar("en_US@calendar=gregorian", zone);
        EXPECT_EQ(calendar.timeZoneId(), zone);
        UErrorCode status = U_ZERO_ERROR;
        const auto at = [&](int year, int month, int day, int hour, int minute) {
            persian->clear();
            persian->set(year, month - 1, day, hour, minute, 0);
            return persian->getTime(status);
        };
        const auto savingAt = [&](double moment) {
            persian->setTime(moment, status);
            return get(*persian, UCAL_DST_OFFSET);
        };
        int checked = 0;
        for (int year = 1385; year <= 1405; ++year)
            for (int month = 1; month <= 12; ++month)
                for (int day = 1; day <= 30; ++day) {
                    const double noon = at(year, month, day, 12, 0);
                    if (savingAt(noon - 86'400'000.0) == savingAt(noon + 86'400'000.0))
                        continue;
                    for (int minutes = 0; minutes < 24 * 60; minutes += 30) {
                        const int hour = minutes / 60, minute = minutes % 60;
                        const auto expected = static_cast<long long>(at(year, month, day, hour, minute) / 1000);
                        const Instant moment = calendar.instantOf(year, month, day, hour, minute);
                        ASSERT_EQ(moment.time_since_epoch().count(), expected)
                            << zone << " " << year << "-" << month << "-" << day << " " << hour << ":" << minute;
                        gregorian->setTime(static_cast<double>(expected) * 1000, status);
                        const CivilTime fields = calendar.gregorianFields(moment);
                        ASSERT_EQ(std::tuple(fields.day, fields.hour, fields.minute),
                                  std::tuple(get(*gregorian, UCAL_DATE), get(*gregorian, UCAL_HOUR_OF_DAY),
                                             get(*gregorian, UCAL_MINUTE)));
                        ++checked;
                    }
                }
        EXPECT_GT(checked, 0) << zone << " changed its clocks on no day";
    }
}

}  // namespace
}  // namespace kavenda
