// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/Screen.h"

namespace kavenda {

// The screen the program runs as: the usual height, or the tall one of --tall.
class FixedScreen final : public Screen {
public:
    static constexpr int usualHeight = 480;
    static constexpr int tallHeight = 568;

    explicit FixedScreen(bool tall = false) : height_(tall ? tallHeight : usualHeight) {}
    int boundsHeight() const override { return height_; }
    void setTall(bool tall) { height_ = tall ? tallHeight : usualHeight; }

private:
    int height_;
};

}  // namespace kavenda
