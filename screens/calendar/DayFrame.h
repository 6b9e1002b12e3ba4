// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace kavenda {

// Where a day button stands on its month page, in points: 45 x 43, column k (0 = Saturday) at
// x = 276 - 46k and row r at y = 44r + 1, so Saturday is the rightmost column. The page's
// artwork is drawn to the same frames.
struct DayFrame {
    static constexpr int width = 45;
    static constexpr int height = 43;

    static constexpr int x(int column) { return 276 - 46 * column; }
    static constexpr int y(int row) { return 44 * row + 1; }
};

}  // namespace kavenda
