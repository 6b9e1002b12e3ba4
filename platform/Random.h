// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace kavenda {

class Random {
public:
    virtual ~Random() = default;
    // A uniform integer from 0 to n - 1.
    virtual int uniform(int n) = 0;
};

}  // namespace kavenda
