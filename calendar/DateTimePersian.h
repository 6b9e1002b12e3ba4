// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/Instant.h"

#include <string>
#include <string_view>

namespace kavenda {

class Clock;
class PersianCalendar;

// A Persian (solar hijri) date: made from the clock by day arithmetic on the official leap
// years, or read back from a date key; writes the date key and the texts of a date, and
// shifts stored times for display.
class DateTimePersian {
public:
    // Today, by the clock and the calendar.
    static DateTimePersian init(const Clock& clock, const PersianCalendar& calendar);
    // The Persian date of an instant in the device's time zone.
    static DateTimePersian init(Instant instant, const PersianCalendar& calendar);
    // From a date key: the day is the last two characters, the month the two before, the
    // year the rest, so keys of 1400 on (seven characters) read back as well.
    static DateTimePersian initWithPersianDate(std::string_view key, const PersianCalendar& calendar);

    // "%d%02d%02d" of (year mod 1300, month, day).
    std::string getPersianDate() const;
    // "%02d %@" of (day, month name).
    std::string getFullPersianDate() const;
    // A stored time "H:MM" as "%02d:%02d", one hour later on the summer-hour days.
    std::string formatHour(std::string_view time) const;
    // "%d:%d": the time plus a signed number of minutes, wrapped to the 24-hour clock.
    static std::string add(std::string_view time, std::string_view timeToInterval);
    // Month names from index 0 (فروردین) to 11 (اسفند).
    static std::string getMonthName(int index);

    int year() const { return year_; }
    int month() const { return month_; }
    int day() const { return day_; }
    int dayOfYear() const { return dayOfYear_; }
    void setDayOfYear(int dayOfYear) { dayOfYear_ = dayOfYear; }

    // The full year whichever form the date holds (92 and 1392 are both 1392).
    int fullYear() const;
    // Whether the stored standard times of this day are shown one hour later: days 1 to 185
    // of the years in which Iran kept summer time, up to 1401.
    bool hasSummerHour() const;

private:
    DateTimePersian(int year, int month, int day, int dayOfYear)
        : year_(year), month_(month), day_(day), dayOfYear_(dayOfYear)
    {
    }

    int year_;
    int month_;
    int day_;
    int dayOfYear_;
};

}  // namespace kavenda
