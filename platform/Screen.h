// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace kavenda {

class Screen {
public:
    virtual ~Screen() = default;
    // 480 points, or 568 on a tall screen.
    virtual int boundsHeight() const = 0;
};

}  // namespace kavenda
