// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "data/RowSet.h"

#include <optional>
#include <string_view>

namespace kavenda {

class DateTimePersian;
class MyDB;

// The main screen's data layer: one page row per chosen city, last city of the user's list
// first, and the arithmetic of the 320-point pages.
class CityPages {
public:
    static constexpr int pageWidth = 320;

    explicit CityPages(MyDB& db) : db_(db) {}

    // Rebuilds the rows for the given date: "Name", "T1" to "T8" and "Description" each.
    void updateDataSource(const DateTimePersian& date);
    const RowSet& datasource() const { return datasource_; }

    // The offset that shows the last page in a view of the given width; 0 without pages.
    static double lastPageOffset(int pageCount, double viewWidth);
    // The page an offset rests on: only a whole number of points on a page boundary counts.
    static std::optional<int> settledPage(double offset);

private:
    Row dayRow(std::string_view dateKey, int timesId, const std::string& name);

    MyDB& db_;
    RowSet datasource_;
};

}  // namespace kavenda
