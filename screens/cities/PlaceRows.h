// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "data/RowSet.h"

#include <cstddef>
#include <string>

namespace kavenda {

// Rows of places as the city list and the search read them: "StateID" and "StateName".
int stateIdAt(const RowSet& rows, std::size_t row);
std::string stateNameAt(const RowSet& rows, std::size_t row);

}  // namespace kavenda
