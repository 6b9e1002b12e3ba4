#pragma once

#include <unicode/calendar.h>

#include <memory>

namespace kavenda::icons {

// The civil dates of one day in the three calendars the data needs.
struct CalendarDay {
    int persianYear, persianMonth, persianDay;
    int gregorianYear, gregorianMonth, gregorianDay;
    int hijriMonth, hijriDay, hijriMonthLength;
};

// Walks the Persian calendar day by day from 1 Farvardin of a year. The Hijri date is ICU's
// astronomical Islamic calendar one day late, which matches 39 of the 44 lunar occasions of
// Iran's official calendar of 1392; ICU's other variants match fewer.
class DayCalendar {
public:
    explicit DayCalendar(int firstPersianYear);
    ~DayCalendar();
    CalendarDay current() const;
    void next();

private:
    std::unique_ptr<icu::Calendar> persian_;
    std::unique_ptr<icu::Calendar> gregorian_;
    std::unique_ptr<icu::Calendar> hijri_;
};

}  // namespace kavenda::icons
