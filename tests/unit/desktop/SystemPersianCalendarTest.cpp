// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

// The program's Persian calendar against ICU's, the platforms' reference: every day of five
// centuries, and every half hour around each change of the clocks in zones that had them.
#include "desktop/SystemPersianCalendar.h"
#include "almanac/DayCalendar.h"

#include <gtest/gtest.h>
#include <unicode/calendar.h>
#include <unicode/gregocal.h>
#include <unicode/timezone.h>

#include <cstdlib>
#include <ctime>
#include <memory>
#include <string>

namespace kavenda {
namespace {

int get(const icu::Calendar& calendar, UCalendarDateFields field)
{
    UErrorCode status = U_ZERO_ERROR;
    return calendar.get(field, status);
}

std::unique_ptr<icu::Calendar> icuCalendar(const char* locale, const icu::TimeZone& zone)
{
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::Calendar> calendar(icu::Calendar::createInstance(zone.clone(), icu::Locale(locale), status));
    EXPECT_TRUE(U_SUCCESS(status));
    return calendar;
}

// Both libraries in one zone for the length of a test.
class InZone {
public:
    explicit InZone(const char* zone) : before_(std::getenv("TZ") ? std::getenv("TZ") : "")
    {
        ::setenv("TZ", zone, 1);
        ::tzset();
        icu::TimeZone::adoptDefault(icu::TimeZone::createTimeZone(zone));
    }
    ~InZone()
    {
        ::setenv("TZ", before_.c_str(), 1);
        ::tzset();
        icu::TimeZone::adoptDefault(icu::TimeZone::createTimeZone(before_.c_str()));
    }
    InZone(const InZone&) = delete;
    InZone& operator=(const InZone&) = delete;

private:
    std::string before_;
};

TEST(SystemPersianCalendar, EveryDayOfFiveCenturiesIsIcusDay)
{
    auto persian = icuCalendar("fa_IR@calendar=persian", *icu::TimeZone::getGMT());
    auto gregorian = icuCalendar("en_US@calendar=gregorian", *icu::TimeZone::getGMT());
    persian->clear();
    persian->set(1200, 0, 1, 12, 0, 0);
    UErrorCode status = U_ZERO_ERROR;
    int wrong = 0;
    for (almanac::DayCalendar days(1200); days.current().persianYear < 1700; days.next()) {
        const almanac::CalendarDay day = days.current();
        gregorian->setTime(persian->getTime(status), status);
        const bool same = day.persianYear == get(*persian, UCAL_YEAR)
            && day.persianMonth == get(*persian, UCAL_MONTH) + 1 && day.persianDay == get(*persian, UCAL_DATE)
            && day.gregorianYear == get(*gregorian, UCAL_YEAR) && day.gregorianMonth == get(*gregorian, UCAL_MONTH) + 1
            && day.gregorianDay == get(*gregorian, UCAL_DATE)
            && almanac::persianJulianDayNumber(day.persianYear, day.persianMonth, day.persianDay)
                == day.julianDayNumber;
        if (!same && ++wrong < 5)
            ADD_FAILURE() << day.persianYear << "-" << day.persianMonth << "-" << day.persianDay << " is "
                          << day.gregorianYear << "-" << day.gregorianMonth << "-" << day.gregorianDay;
        persian->add(UCAL_DATE, 1, status);
    }
    ASSERT_TRUE(U_SUCCESS(status));
    EXPECT_EQ(wrong, 0);
}

TEST(SystemPersianCalendar, DaysOfTheYearRunOnPastAShortEsfandAsIcusDo)
{
    SystemPersianCalendar calendar;
    // clang-format off
    const struct { int year, month, day, dayOfYear; } cases[] = {
        {1403, 12, 30, 366},  // leap
        {1407, 12, 30, 1},    // not leap: the next year's first day
        {1408, 12, 30, 366},
        {1404, 7, 1, 187},
        {1404, 13, 1, 1},
    };
    // clang-format on
    for (const auto& c : cases)
        EXPECT_EQ(calendar.dayOfYear(c.year, c.month, c.day), c.dayOfYear) << c.year << "-" << c.month << "-" << c.day;
}

// Every half hour of the days around each change of the clocks, read both ways.
TEST(SystemPersianCalendar, MomentsAroundEachChangeOfTheClocksAreIcus)
{
    for (const char* zone : {"Asia/Tehran", "America/New_York", "Australia/Lord_Howe"}) {
        const InZone in(zone);
        SystemPersianCalendar calendar;
        auto persian = icuCalendar("fa_IR@calendar=persian", *icu::TimeZone::createTimeZone(zone));
        auto gregorian = icuCalendar("en_US@calendar=gregorian", *icu::TimeZone::createTimeZone(zone));
        EXPECT_EQ(calendar.timeZoneId(), zone);
        int checked = 0;
        for (int year = 1385; year <= 1405; ++year)
            for (int month = 1; month <= 12; ++month)
                for (int day = 1; day <= 31; day += 1) {
                    UErrorCode status = U_ZERO_ERROR;
                    persian->clear();
                    persian->set(year, month - 1, day, 12, 0, 0);
                    const double noon = persian->getTime(status);
                    const auto savingAt = [&](double moment) {
                        persian->setTime(moment, status);
                        return get(*persian, UCAL_DST_OFFSET);
                    };
                    const bool changes = savingAt(noon - 86'400'000.0) != savingAt(noon + 86'400'000.0);
                    if (!changes || day > 30)
                        continue;
                    for (int halfHours = 0; halfHours < 48; ++halfHours) {
                        const int hour = halfHours / 2, minute = 30 * (halfHours % 2);
                        persian->clear();
                        persian->set(year, month - 1, day, hour, minute, 0);
                        const auto expected = static_cast<long long>(persian->getTime(status) / 1000);
                        const Instant moment = calendar.instantOf(year, month, day, hour, minute);
                        ASSERT_EQ(moment.time_since_epoch().count(), expected)
                            << zone << " " << year << "-" << month << "-" << day << " " << hour << ":" << minute;
                        gregorian->setTime(static_cast<double>(expected) * 1000, status);
                        const CivilTime fields = calendar.gregorianFields(moment);
                        ASSERT_EQ(fields.day, get(*gregorian, UCAL_DATE));
                        ASSERT_EQ(fields.hour * 60 + fields.minute,
                                  get(*gregorian, UCAL_HOUR_OF_DAY) * 60 + get(*gregorian, UCAL_MINUTE));
                        ++checked;
                    }
                }
        EXPECT_GT(checked, 0) << zone << " changed its clocks on no day";
    }
}

}  // namespace
}  // namespace kavenda
