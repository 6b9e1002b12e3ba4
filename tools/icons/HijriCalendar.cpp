#include "tools/icons/HijriCalendar.h"

#include "tools/icons/MonthStartPrediction.h"

#include <algorithm>
#include <stdexcept>
#include <string>

namespace kavenda::icons {

namespace {

HijriMonthStart following(const HijriMonthStart& month)
{
    return month.month == 12 ? HijriMonthStart{month.year + 1, 1, 0} : HijriMonthStart{month.year, month.month + 1, 0};
}

std::string name(const HijriMonthStart& month)
{
    return std::to_string(month.year) + "/" + std::to_string(month.month);
}

}  // namespace

HijriCalendar::HijriCalendar(std::vector<HijriMonthStart> table, long lastDay) : months_(std::move(table))
{
    if (months_.empty())
        throw std::runtime_error("the table of Hijri months is empty");
    for (std::size_t i = 1; i < months_.size(); ++i) {
        const HijriMonthStart expected = following(months_[i - 1]);
        if (months_[i].year != expected.year || months_[i].month != expected.month)
            throw std::runtime_error("Hijri month " + name(expected) + " is missing before " + name(months_[i]));
        const long length = months_[i].firstDay - months_[i - 1].firstDay;
        if (length != 29 && length != 30)
            throw std::runtime_error("Hijri month " + name(months_[i - 1]) + " has " + std::to_string(length)
                                     + " days");
    }
    while (months_.back().firstDay <= lastDay) {
        HijriMonthStart next = following(months_.back());
        // A prediction never makes a month shorter than 29 days or longer than 30.
        next.firstDay = std::clamp(predictedFirstDay(next.year, next.month), months_.back().firstDay + 29,
                                   months_.back().firstDay + 30);
        months_.push_back(next);
    }
}

HijriDate HijriCalendar::on(long julianDayNumber) const
{
    const auto after = std::upper_bound(months_.begin(), months_.end(), julianDayNumber,
                                        [](long day, const HijriMonthStart& m) { return day < m.firstDay; });
    if (after == months_.begin() || after == months_.end())
        throw std::runtime_error("Julian day " + std::to_string(julianDayNumber) + " is outside the Hijri months");
    const HijriMonthStart& month = *(after - 1);
    return HijriDate{month.year, month.month, static_cast<int>(julianDayNumber - month.firstDay) + 1,
                     static_cast<int>(after->firstDay - month.firstDay)};
}

}  // namespace kavenda::icons
