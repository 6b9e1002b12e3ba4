// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "data/YearRowsWriter.h"

#include "almanac/YearRows.h"
#include "data/Connection.h"

namespace kavenda {

void writeYearRows(Connection& db, const almanac::YearRows& rows)
{
    Connection::Statement times(db,
                                "INSERT OR IGNORE INTO tTimes(StateID, Date, T1, T2, T3, T4, T5, T6) "
                                "VALUES(?, ?, ?, ?, ?, ?, ?, ?)");
    for (const almanac::TimesRow& row : rows.times) {
        times.bind(1, row.stateId).bind(2, row.date);
        for (int k = 0; k < 6; ++k)
            times.bind(3 + k, row.times[static_cast<std::size_t>(k)]);
        times.run();
    }
    Connection::Statement events(db, "INSERT OR IGNORE INTO tEvents(Date, Description, IsHoliday) VALUES(?, ?, ?)");
    for (const almanac::EventsRow& row : rows.events)
        events.bind(1, row.date).bind(2, row.description).bind(3, row.holiday ? 1 : 0).run();
}

}  // namespace kavenda
