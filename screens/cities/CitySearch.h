// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "data/RowSet.h"

#include <string>
#include <string_view>

namespace kavenda {

class MyDB;
class SearchControllerDelegate;

// The candidates of a search by part of a name, refreshed on every change of the typed text:
// unchosen cities (with their province) in city mode, provinces in province mode.
class CitySearch {
public:
    static constexpr int cityMode = 0;
    static constexpr int provinceMode = 1;

    explicit CitySearch(MyDB& db, int typeID = cityMode);

    int typeID() const { return typeID_; }
    bool isProvinceMode() const { return typeID_ == provinceMode; }

    // The typed text with Arabic letter forms made Persian, as the names are stored.
    void textDidChange(std::string_view typed);
    void updateDataSource(std::string_view text);
    const RowSet& datasource() const { return datasource_; }
    int count() const { return static_cast<int>(datasource_.size()); }
    std::string nameAt(int row) const;

    // Appends a city to the end of the chosen cities.
    void addState(int id);
    // Hands the picked candidate on (the province, or the city added), then ends the search.
    void pick(int row, SearchControllerDelegate& delegate);

private:
    MyDB& db_;
    int typeID_;
    RowSet datasource_;
};

}  // namespace kavenda
