// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "data/DataHorizon.h"

#include "almanac/Almanac.h"
#include "data/Connection.h"
#include "data/DataFolderLock.h"
#include "data/YearRowsWriter.h"

#include <optional>

namespace kavenda {

namespace {

int yearOfKey(long long key)
{
    return static_cast<int>(key / 10000) + 1300;
}

}  // namespace

DataHorizon::DataHorizon(std::filesystem::path database) : database_(std::move(database))
{
}

template <typename Enough> std::vector<int> DataHorizon::addYearsUntil(Enough enough)
{
    const DataFolderLock lock(database_.parent_path());
    Connection db(database_);
    std::optional<almanac::Almanac> almanac;  // made only when a year is missing
    std::vector<int> added;
    for (;;) {
        // A copy without a single day has nothing to follow on from.
        const std::optional<long long> last = db.integer("SELECT MAX(Date) FROM tEvents");
        if (!last || yearOfKey(*last) >= lastYear || enough(db, *last))
            return added;
        const int year = yearOfKey(*last) + 1;
        if (!almanac)
            almanac.emplace();
        const almanac::YearRows rows = almanac->year(year);
        db.exec("BEGIN IMMEDIATE");
        try {
            writeYearRows(db, rows);
            db.exec("COMMIT");
        } catch (...) {
            db.exec("ROLLBACK");
            throw;
        }
        added.push_back(year);
    }
}

std::vector<int> DataHorizon::keepAhead(int today)
{
    return addYearsUntil([today](Connection& db, long long) {
        return db.integer("SELECT COUNT(*) FROM tEvents WHERE Date >= " + std::to_string(today)).value_or(0)
            >= daysAhead;
    });
}

std::vector<int> DataHorizon::holdThrough(int year)
{
    return addYearsUntil([year](Connection&, long long last) { return yearOfKey(last) >= year; });
}

std::string DataHorizon::report(const std::vector<int>& years)
{
    if (years.empty())
        return {};
    std::string line = "kavenda: added the times and occasions of " + std::to_string(years.front());
    if (years.size() > 1)
        line += " to " + std::to_string(years.back());
    return line;
}

}  // namespace kavenda
