#pragma once

#include "data/RowSet.h"

#include <cstddef>
#include <string>

namespace kavenda {

// Rows of places as the city list and the search read them: "StateID" and "StateName".
int stateIdAt(const RowSet& rows, std::size_t row);
std::string stateNameAt(const RowSet& rows, std::size_t row);

}  // namespace kavenda
