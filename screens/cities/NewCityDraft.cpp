// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "screens/cities/NewCityDraft.h"

#include "data/IntValue.h"
#include "data/MyDB.h"
#include "data/Statements.h"
#include "text/Format.h"
#include "text/Utility.h"

#include <algorithm>
#include <cmath>

namespace kavenda {

NewCityDraft::NewCityDraft(MyDB& db) : db_(db)
{
}

void NewCityDraft::setProvince(int provinceId, std::string_view provinceName)
{
    provinceID_ = provinceId;
    provinceName_ = provinceName;
}

int NewCityDraft::offsetAt(double position)
{
    if (!std::isfinite(position))
        return 0;
    return std::clamp(static_cast<int>(std::floor(position)), minimumOffset, maximumOffset);
}

int NewCityDraft::setOffset(int index, double position)
{
    if (index < 0 || index >= offsetCount)
        return 0;
    difArray_[static_cast<std::size_t>(index)] = offsetAt(position);
    return difArray_[static_cast<std::size_t>(index)];
}

bool NewCityDraft::save()
{
    if (!validate())
        return false;
    // One transaction: a failed statement or a killed process leaves the whole city or none.
    return db_.inTransaction([this] {
        const int id = insertPlace();
        if (id == 0)
            return false;
        std::array<std::string, offsetCount> minutes;
        std::transform(difArray_.begin(), difArray_.end(), minutes.begin(), [](int v) { return std::to_string(v); });
        if (!db_.ExecuteNonQuery(
                formatSql(sql::insertOffsetRow,
                          {id, offsetRowDate, minutes[0], minutes[1], minutes[2], minutes[3], minutes[4], minutes[5]})))
            return false;
        const int count = intValue(db_.ExecuteScaler(sql::chosenCityCountUnnamed).value_or("0"));
        return db_.ExecuteNonQuery(formatSql(sql::insertChosenCity, {id, count + 1}));
    });
}

// The new place's identifier, or 0 when it was not written (or cannot be told, and so cannot
// be given rows of its own).
int NewCityDraft::insertPlace()
{
    const std::string name = Utility::GetProperString(cityName_);
    if (!db_.ExecuteNonQuery(formatSql(sql::insertCity, {name, provinceID_})))
        return 0;
    // The database numbers a new place above every other, so the largest identifier is ours.
    return intValue(db_.ExecuteScaler(sql::highestPlaceId).value_or("0"));
}

}  // namespace kavenda
