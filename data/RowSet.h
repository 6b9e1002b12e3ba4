// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <map>
#include <string>
#include <vector>

namespace kavenda {

// One result row: column name to text. NULL reads as "", a later column of the same name wins.
using Row = std::map<std::string, std::string>;
using RowSet = std::vector<Row>;

// The value of a column, "" when the row has none (a damaged schema must not stop a screen).
inline std::string valueOf(const Row& row, const std::string& column)
{
    const auto found = row.find(column);
    return found == row.end() ? std::string() : found->second;
}

}  // namespace kavenda
