// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "tests/support/FixtureDatabase.h"

#include <string>
#include <vector>

namespace kavenda::test {

// The places of the city screens; the chosen cities as "id:ordering" in ascending order.
class CitiesFixture : public WorkingCopy {
protected:
    CitiesFixture() : WorkingCopy({"fixture-data.sql", "offset-city.sql", "cities.sql"}) {}

    std::vector<std::string> orderings()
    {
        std::vector<std::string> found;
        for (const auto& row : db.Execute("SELECT StateID, Ordering FROM tSelectedStates ORDER BY Ordering, StateID"))
            found.push_back(row.at("StateID") + ":" + row.at("Ordering"));
        return found;
    }
};

}  // namespace kavenda::test
