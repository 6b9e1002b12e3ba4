// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "screens/cities/PlaceRows.h"

#include "data/IntValue.h"
#include "data/MyDB.h"

namespace kavenda {

int stateIdAt(const RowSet& rows, std::size_t row)
{
    return intValue(MyDB::getValue(rows, row, "StateID").value_or(""));
}

std::string stateNameAt(const RowSet& rows, std::size_t row)
{
    return MyDB::getValue(rows, row, "StateName").value_or("");
}

}  // namespace kavenda
