// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <string_view>

namespace kavenda {

// What the day page's eight time rows are. The page artwork draws them beside the rows and the
// page writes only the values, so a screen reader takes them from here.
inline constexpr std::array<std::string_view, 8> timeCaptions{
    "اذان صبح", "طلوع آفتاب", "اذان ظهر", "غروب آفتاب", "اذان مغرب", "نیمه شب شرعی", "اذان صبح فردا", "طلوع آفتاب فردا",
};

}  // namespace kavenda
