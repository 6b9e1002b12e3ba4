// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "almanac/Almanac.h"

#include "almanac/DayCalendar.h"
#include "almanac/MonthStartPrediction.h"
#include "almanac/OccasionCalendar.h"
#include "almanac/PrayerTimes.h"
#include "almanac/SourceTexts.h"

#include <stdexcept>

namespace kavenda::almanac {

namespace {

int dateKey(const CalendarDay& day)
{
    return day.persianYear % 1300 * 10000 + day.persianMonth * 100 + day.persianDay;
}

std::string joined(const std::vector<std::string>& names)
{
    std::string text;
    for (const std::string& name : names)
        text += (text.empty() ? "" : "@") + name;
    return text;
}

}  // namespace

Almanac::Almanac()
    : provinces_(readProvinces(texts::places)), official_(readOccasions(texts::occasions1392, 1)),
      solar_(readOccasions(texts::solarOccasions)), lunar_(readOccasions(texts::lunarOccasions)),
      hijriTable_(readHijriMonthStarts(texts::hijriMonthStarts))
{
    if (provinces_.size() != provinceCount)
        throw std::runtime_error("the places table does not hold the 31 provinces");
}

YearRows Almanac::year(int persianYear)
{
    YearRows rows{persianYear, {}, {}};
    DayCalendar calendar(persianYear);
    const long firstDay = calendar.current().julianDayNumber;
    const long lastDay = DayCalendar(persianYear + 1).current().julianDayNumber - 1;
    const OccasionCalendar occasions(officialYear, official_, solar_, lunar_,
                                     HijriCalendar(hijriTable_, firstDay, lastDay, [this](int year, int month) {
                                         return predictedFirstDay(sun_, year, month);
                                     }));

    rows.times.reserve(static_cast<std::size_t>((lastDay - firstDay + 2) * provinceCount));
    for (;; calendar.next()) {
        const CalendarDay day = calendar.current();
        const int key = dateKey(day);
        for (std::size_t i = 0; i < provinces_.size(); ++i) {
            const Place place{provinces_[i].latitude, provinces_[i].longitude, iranStandardTime};
            const DayTimes t = dayTimes(sun_, place, day.gregorianYear, day.gregorianMonth, day.gregorianDay);
            TimesRow row{centreId(i), key, {}};
            const double hours[6] = {t.dawn, t.sunrise, t.noon, t.sunset, t.evening, t.midnight};
            for (std::size_t k = 0; k < 6; ++k) {
                char buffer[8];
                row.times[k] = std::string(formatTime(hours[k], buffer));
            }
            rows.times.push_back(std::move(row));
        }
        if (day.persianYear > persianYear)
            break;
        const DayEvents e = occasions.on(day);
        rows.events.push_back(
            {key, e.names.empty() ? std::nullopt : std::optional<std::string>(joined(e.names)), e.holiday});
    }
    return rows;
}

}  // namespace kavenda::almanac
