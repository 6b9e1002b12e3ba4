// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "screens/cities/CitySearch.h"

#include "data/IntValue.h"
#include "data/MyDB.h"
#include "data/Statements.h"
#include "screens/cities/PlaceRows.h"
#include "screens/cities/SearchControllerDelegate.h"
#include "text/Format.h"
#include "text/Utility.h"

namespace kavenda {

CitySearch::CitySearch(MyDB& db, int typeID) : db_(db), typeID_(typeID)
{
}

void CitySearch::textDidChange(std::string_view typed)
{
    updateDataSource(Utility::GetProperString(typed));
}

void CitySearch::updateDataSource(std::string_view text)
{
    const auto statement = isProvinceMode() ? sql::searchProvinces : sql::searchUnchosenCities;
    datasource_ = db_.run(formatSql(statement, {text}));
}

std::string CitySearch::nameAt(int row) const
{
    return stateNameAt(datasource_, static_cast<std::size_t>(row));
}

void CitySearch::addState(int id)
{
    const int count = intValue(db_.ExecuteScaler(sql::chosenCityCount).value_or("0"));
    db_.ExecuteNonQuery(formatSql(sql::insertChosenCity, {id, count + 1}));
}

void CitySearch::pick(int row, SearchControllerDelegate& delegate)
{
    if (row < 0 || row >= count())
        return;
    const int id = stateIdAt(datasource_, static_cast<std::size_t>(row));
    if (isProvinceMode())
        delegate.setProvince(id, nameAt(row));
    else
        addState(id);
    delegate.closeForm();
}

}  // namespace kavenda
