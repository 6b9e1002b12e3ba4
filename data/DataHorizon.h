// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace kavenda {

class Connection;

// Keeps the working copy ahead of the clock: the years after the last one it holds are computed
// by the almanac, as the generator computed the shipped ones, and added one transaction a year
// under the data folder's lock. Nothing that is there is changed. Failures throw.
class DataHorizon {
public:
    static constexpr int daysAhead = 400;
    // Predicted crescents a century ahead are no calendar; nor would the keys stay seven digits.
    static constexpr int lastYear = 1499;

    explicit DataHorizon(std::filesystem::path database);

    // Adds years until `daysAhead` days from the date key `today` on are held; the years added.
    std::vector<int> keepAhead(int today);
    // Adds the years up to `year` (not past `lastYear`); the years added.
    std::vector<int> holdThrough(int year);

    // The log line for the years added, empty for none.
    static std::string report(const std::vector<int>& years);

private:
    template <typename Enough> std::vector<int> addYearsUntil(Enough enough);

    std::filesystem::path database_;
};

}  // namespace kavenda
