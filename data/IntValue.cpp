// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "data/IntValue.h"

#include <climits>

namespace kavenda {

int intValue(std::string_view text)
{
    std::size_t i = 0;
    while (i < text.size() && (text[i] == ' ' || text[i] == '\t' || text[i] == '\n'))
        ++i;
    bool negative = false;
    if (i < text.size() && (text[i] == '-' || text[i] == '+'))
        negative = text[i++] == '-';
    long long value = 0;
    for (; i < text.size() && text[i] >= '0' && text[i] <= '9'; ++i) {
        value = value * 10 + (text[i] - '0');
        if (value > INT_MAX)
            return negative ? INT_MIN : INT_MAX;
    }
    return static_cast<int>(negative ? -value : value);
}

}  // namespace kavenda
