// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace kavenda {

class Connection;

namespace almanac {
struct YearRows;
}

// Adds a computed year to the database: every row that is not there yet, none changed. The
// generator writes the shipped years with it, the top-up the years after them.
void writeYearRows(Connection& db, const almanac::YearRows& rows);

}  // namespace kavenda
