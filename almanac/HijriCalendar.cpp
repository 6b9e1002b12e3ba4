// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "almanac/HijriCalendar.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <string>

namespace kavenda::almanac {

namespace {

constexpr double synodicMonth = 29.530588861;

HijriMonthStart following(const HijriMonthStart& month)
{
    return month.month == 12 ? HijriMonthStart{month.year + 1, 1, 0} : HijriMonthStart{month.year, month.month + 1, 0};
}

HijriMonthStart preceding(const HijriMonthStart& month)
{
    return month.month == 1 ? HijriMonthStart{month.year - 1, 12, 0} : HijriMonthStart{month.year, month.month - 1, 0};
}

std::string name(const HijriMonthStart& month)
{
    return std::to_string(month.year) + "/" + std::to_string(month.month);
}

}  // namespace

HijriCalendar::HijriCalendar(std::vector<HijriMonthStart> table, long firstDay, long lastDay, const Prediction& predict)
    : months_(std::move(table))
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
    if (firstDay > months_.back().firstDay + 30)
        startAfterTheTable(firstDay, predict);
    while (months_.back().firstDay <= lastDay) {
        HijriMonthStart next = following(months_.back());
        // A prediction never makes a month shorter than 29 days or longer than 30.
        next.firstDay =
            std::clamp(predict(next.year, next.month), months_.back().firstDay + 29, months_.back().firstDay + 30);
        months_.push_back(next);
    }
}

void HijriCalendar::startAfterTheTable(long firstDay, const Prediction& predict)
{
    HijriMonthStart month = months_.back();
    const long skipped = std::lround(std::floor(static_cast<double>(firstDay - month.firstDay) / synodicMonth)) - 1;
    for (long i = 0; i < skipped; ++i)
        month = following(month);
    month.firstDay = predict(month.year, month.month);
    while (month.firstDay > firstDay) {
        month = preceding(month);
        month.firstDay = predict(month.year, month.month);
    }
    months_ = {month};
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

}  // namespace kavenda::almanac
