#pragma once

#include <map>
#include <string>
#include <vector>

namespace kavenda {

// One result row: column name to text. NULL reads as "", a later column of the same name wins.
using Row = std::map<std::string, std::string>;
using RowSet = std::vector<Row>;

}  // namespace kavenda
