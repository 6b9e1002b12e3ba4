// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "screens/cities/ChosenCities.h"

#include "data/MyDB.h"
#include "data/Statements.h"
#include "screens/cities/PlaceRows.h"
#include "screens/cities/SelectionControllerDelegate.h"
#include "text/Format.h"

#include <algorithm>
#include <utility>

namespace kavenda {

ChosenCities::ChosenCities(MyDB& db, std::function<void()> rebuildReminders)
    : db_(db), rebuildReminders_(std::move(rebuildReminders))
{
}

void ChosenCities::updateDataSource()
{
    datasource_ = db_.Execute(sql::chosenCitiesWithProvince);
}

int ChosenCities::stateIdAt(int row) const
{
    return kavenda::stateIdAt(datasource_, static_cast<std::size_t>(row));
}

std::string ChosenCities::nameAt(int row) const
{
    return stateNameAt(datasource_, static_cast<std::size_t>(row));
}

bool ChosenCities::remove(int row)
{
    if (row < 0 || row >= count())
        return true;
    const int id = stateIdAt(row);
    const bool written = db_.inTransaction([this, id] {
        return db_.ExecuteNonQuery(formatSql(sql::deleteChosenCity, {id}))
            && (id < firstUserCityId
                || (db_.ExecuteNonQuery(formatSql(sql::deletePlace, {id}))
                    && db_.ExecuteNonQuery(formatSql(sql::deletePlaceTimes, {id}))));
    });
    updateDataSource();
    return written;
}

int ChosenCities::targetRow(int proposed) const
{
    return std::clamp(proposed, 0, std::max(count() - 1, 0));
}

bool ChosenCities::move(int from, int to)
{
    if (from < 0 || from >= count())
        return true;
    to = targetRow(to);
    const auto first = datasource_.begin();
    if (to > from)
        std::rotate(first + from, first + from + 1, first + to + 1);
    else if (to < from)
        std::rotate(first + to, first + from, first + from + 1);
    // Every row is renumbered, moved or not, so earlier gaps in the numbering disappear.
    const bool written = db_.inTransaction([this] {
        for (int k = 0; k < count(); ++k) {
            if (!db_.ExecuteNonQuery(formatSql(sql::updateOrdering, {k, stateIdAt(k)})))
                return false;
        }
        return true;
    });
    // The list shows what is stored.
    if (!written)
        updateDataSource();
    return written;
}

bool ChosenCities::appear()
{
    updateDataSource();
    const bool openSearch = count() == 0 && !firstTime_;
    firstTime_ = true;
    return openSearch;
}

void ChosenCities::Done(SelectionControllerDelegate* delegate)
{
    rebuildReminders_();
    if (delegate)
        delegate->closeForm();
}

}  // namespace kavenda
