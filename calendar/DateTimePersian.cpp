#include "calendar/DateTimePersian.h"

#include "calendar/TimeOfDay.h"

#include "data/Format.h"
#include "data/IntValue.h"
#include "platform/Clock.h"
#include "platform/PersianCalendar.h"
#include "platform/Platform.h"

#include <array>

namespace kavenda {

namespace {

constexpr std::array<int, 12> gregorianMonthDays{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
constexpr std::array<std::string_view, 12> monthNames{
    "فروردین", "اردیبهشت", "خرداد", "تیر", "مرداد", "شهریور",
    "مهر", "آبان", "آذر", "دی", "بهمن", "اسفند"};
constexpr int lastYearWithSummerHour = 1401;
constexpr int lastDayWithSummerHour = 185;
constexpr int minutesPerDay = 24 * 60;

}  // namespace

DateTimePersian DateTimePersian::init()
{
    const Platform& platform = Platform::installed();
    return init(*platform.clock, *platform.calendar);
}

DateTimePersian DateTimePersian::init(const Clock& clock, const PersianCalendar& calendar)
{
    return init(clock.now(), calendar);
}

DateTimePersian DateTimePersian::init(Instant instant, const PersianCalendar& calendar)
{
    const CivilTime civil = calendar.gregorianFields(instant);
    const bool gregorianLeap = civil.year % 4 == 0;
    int n = civil.day;
    for (int m = 1; m < civil.month; ++m)
        n += gregorianMonthDays[static_cast<std::size_t>(m - 1)] + (m == 2 && gregorianLeap ? 1 : 0);

    // A Gregorian year one past a leap year holds the end of a 366-day Persian year.
    int yearLength = 365;
    int esfandDays = 29;
    if (civil.year % 4 == 1) {
        n += 1;
        esfandDays = 30;
        yearLength = 366;
    }
    n += 286;

    int year = civil.year - 622;
    int dayOfYear = n;
    if (n > yearLength) {
        dayOfYear = n - yearLength;
        year = civil.year - 621;
    }

    int month = 1;
    int rest = dayOfYear;
    for (;;) {
        const int length = month <= 6 ? 31 : month <= 11 ? 30 : esfandDays;
        if (rest - length < 1 || month == 12)
            break;
        rest -= length;
        ++month;
    }
    return DateTimePersian(year, month, rest, dayOfYear);
}

DateTimePersian DateTimePersian::initWithPersianDate(std::string_view key)
{
    return initWithPersianDate(key, *Platform::installed().calendar);
}

DateTimePersian DateTimePersian::initWithPersianDate(std::string_view key, const PersianCalendar& calendar)
{
    const std::size_t dayAt = key.size() >= 2 ? key.size() - 2 : 0;
    const std::size_t monthAt = dayAt >= 2 ? dayAt - 2 : 0;
    const int year = intValue(key.substr(0, monthAt));
    const int month = intValue(key.substr(monthAt, dayAt - monthAt));
    const int day = intValue(key.substr(dayAt));
    const DateTimePersian date(year, month, day, 0);
    return DateTimePersian(year, month, day, calendar.dayOfYear(date.fullYear(), month, day));
}

int DateTimePersian::fullYear() const
{
    return year_ >= 1300 ? year_ : year_ + 1300;
}

bool DateTimePersian::hasSummerHour() const
{
    return dayOfYear_ <= lastDayWithSummerHour && fullYear() <= lastYearWithSummerHour;
}

std::string DateTimePersian::getPersianDate() const
{
    return format("%d%02d%02d", {year_ % 1300, month_, day_});
}

std::string DateTimePersian::getFullPersianDate() const
{
    return format("%02d %@", {day_, getMonthName(month_ - 1)});
}

std::string DateTimePersian::formatHour(std::string_view time) const
{
    TimeOfDay t = readTimeOfDay(time);
    if (hasSummerHour())
        t.hour = (t.hour + 1) % 24;
    return format("%02d:%02d", {t.hour, t.minute});
}

std::string DateTimePersian::add(std::string_view time, std::string_view timeToInterval)
{
    const TimeOfDay t = readTimeOfDay(time);
    const int total = ((t.hour * 60 + t.minute + intValue(timeToInterval)) % minutesPerDay + minutesPerDay) % minutesPerDay;
    return format("%d:%d", {total / 60, total % 60});
}

std::string DateTimePersian::getMonthName(int index)
{
    if (index < 0 || index >= static_cast<int>(monthNames.size()))
        return {};
    return std::string(monthNames[static_cast<std::size_t>(index)]);
}

}  // namespace kavenda
