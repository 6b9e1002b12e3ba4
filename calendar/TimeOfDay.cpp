// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "calendar/TimeOfDay.h"

#include "data/IntValue.h"

namespace kavenda {

TimeOfDay readTimeOfDay(std::string_view text)
{
    const std::size_t colon = text.find(':');
    if (colon == std::string_view::npos)
        return {intValue(text), 0};
    return {intValue(text.substr(0, colon)), intValue(text.substr(colon + 1))};
}

}  // namespace kavenda
