// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string_view>

// The source tables of resources/data, compiled into the library (see EmbedTables.cmake).
namespace kavenda::almanac::texts {

extern const std::string_view places;
extern const std::string_view hijriMonthStarts;
extern const std::string_view lunarOccasions;
extern const std::string_view solarOccasions;
extern const std::string_view occasions1392;

}  // namespace kavenda::almanac::texts
