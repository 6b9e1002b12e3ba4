// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "data/RowSet.h"

#include <algorithm>
#include <functional>
#include <string>

namespace kavenda {

class MyDB;
class SelectionControllerDelegate;

// The chosen cities in the user's order, and what the city list decides about them: removing
// (with the places the user made), reordering, the enabled states that hang on the count, how
// many rows the list makes room for, and the single automatic opening of the search.
class ChosenCities {
public:
    // Identifiers from here on belong to cities the user made; removing one deletes the place.
    static constexpr int firstUserCityId = 63;
    // The list always has room for this many rows, shown or empty.
    static constexpr int minimumRows = 7;

    ChosenCities(MyDB& db, std::function<void()> rebuildReminders);

    void updateDataSource();
    const RowSet& datasource() const { return datasource_; }
    int count() const { return static_cast<int>(datasource_.size()); }
    int stateIdAt(int row) const;
    std::string nameAt(int row) const;

    // Done, and tabs 1 to 3 of the options, need at least one chosen city.
    bool canFinish() const { return count() > 0; }
    bool preferencesEnabled() const { return count() > 0; }
    // Only the first city, the one whose times are announced, keeps the default colour.
    static bool isDimmed(int row) { return row > 0; }

    // Every row is shown: at least seven rows' worth, longer lists scroll in their holder.
    int shownRows() const { return std::max(count(), minimumRows); }

    // Takes a city off the list (and a city of the user's own out of the database); false when
    // the database refused, and the list then shows what is stored.
    bool remove(int row);
    // A drop past the end lands on the last row.
    int targetRow(int proposed) const;
    // Moves a row and renumbers every chosen city 0..n-1 in list order; the list is not re-read
    // unless the database refused (false), when it shows the stored order again.
    bool move(int from, int to);

    // Each appearance re-reads the list; true when the search should open by itself, which
    // happens only on the first appearance and only while no city is chosen.
    bool appear();

    // Rebuilds the reminders for the new first city, then lets the main screen close the options.
    void Done(SelectionControllerDelegate* delegate);

private:
    MyDB& db_;
    std::function<void()> rebuildReminders_;
    RowSet datasource_;
    bool firstTime_ = false;
};

}  // namespace kavenda
