// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "screens/main/CityPages.h"

#include "calendar/DateTimePersian.h"
#include "data/IntValue.h"
#include "data/MyDB.h"
#include "data/Statements.h"
#include "text/Format.h"

#include <cmath>

namespace kavenda {

namespace {

constexpr int timesPerPage = 8;

std::string timeKey(int k)
{
    return format("T%d", {k});
}

}  // namespace

void CityPages::updateDataSource(const DateTimePersian& date)
{
    datasource_.clear();
    const std::string dateKey = date.getPersianDate();
    for (const Row& city : db_.Execute(sql::chosenCitiesLastFirst)) {
        const bool centre = valueOf(city, "IsCenter") == "1";
        const std::string name = valueOf(city, "Name");
        const int id = intValue(valueOf(city, "StateID"));
        const int timesId =
            centre ? id : intValue(db_.ExecuteScaler(formatSql(sql::provinceCentreOfCity, {id})).value_or(""));

        Row page = dayRow(dateKey, timesId, name);
        if (!centre) {
            page["Name"] = name;
            const RowSet offsets = db_.Execute(formatSql(sql::cityOffsets, {id}));
            for (int k = 1; k <= timesPerPage; ++k) {
                const auto time = page.find(timeKey(k));
                if (time == page.end())
                    continue;
                // No offset row: the centre's times, unshifted.
                const std::string offset = offsets.empty() ? "" : valueOf(offsets.front(), format("%d", {k}));
                time->second = DateTimePersian::add(time->second, offset);
            }
        }
        datasource_.push_back(std::move(page));
    }
}

// A centre that is not chosen itself misses the day query's join, so its day is read without
// it; a day with no data keeps the page (name and date, no times) so every chosen city has one.
Row CityPages::dayRow(std::string_view dateKey, int timesId, const std::string& name)
{
    for (std::string_view statement : {sql::dayTimes, sql::dayTimesOfAnyCentre}) {
        RowSet rows = db_.Execute(formatSql(statement, {dateKey, timesId}));
        if (!rows.empty())
            return std::move(rows.front());
    }
    return Row{{"Name", name}, {"Description", ""}};
}

double CityPages::lastPageOffset(int pageCount, double viewWidth)
{
    return pageCount > 0 ? viewWidth * (pageCount - 1) : 0.0;
}

std::optional<int> CityPages::settledPage(double offset)
{
    if (offset != std::floor(offset))
        return std::nullopt;
    const auto whole = static_cast<long long>(offset);
    if (whole % pageWidth != 0)
        return std::nullopt;
    return static_cast<int>(whole / pageWidth);
}

}  // namespace kavenda
