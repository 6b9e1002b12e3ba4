// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "screens/main/DayPage.h"

#include "calendar/DateTimePersian.h"
#include "screens/main/TimeCaptions.h"
#include "text/Format.h"
#include "text/Utility.h"

namespace kavenda {

namespace {

constexpr int firstNextDayTime = 7;

std::string firstOccasion(const std::string& description)
{
    const std::size_t at = description.find('@');
    if (at == std::string::npos)
        return description;
    return format("%@ و ...", {std::string_view(description).substr(0, at)});
}

}  // namespace

DayPage::DayPage(const Row& row, DateTimePersian& date)
    : name_(valueOf(row, "Name")), occasion_(Utility::ConvertToPersian(firstOccasion(valueOf(row, "Description")))),
      date_(Utility::ConvertToPersian(date.getFullPersianDate()))
{
    for (int k = 1; k <= timeCount; ++k) {
        const auto time = row.find(format("T%d", {k}));
        if (time == row.end())
            continue;
        // The next day's times take the summer-hour rule of that day.
        const int shift = k >= firstNextDayTime ? 1 : 0;
        date.setDayOfYear(date.dayOfYear() + shift);
        times_[static_cast<std::size_t>(k - 1)] = Utility::ConvertToPersian(date.formatHour(time->second));
        date.setDayOfYear(date.dayOfYear() - shift);
    }
}

std::string DayPage::timeReading(int k) const
{
    const std::string caption(timeCaptions.at(static_cast<std::size_t>(k - 1)));
    return time(k).empty() ? caption : caption + " " + time(k);
}

}  // namespace kavenda
