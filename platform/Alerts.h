// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>

namespace kavenda {

class Alerts {
public:
    virtual ~Alerts() = default;
    // A message with one button; an empty title shows none.
    virtual void show(const std::string& title, const std::string& message, const std::string& button) = 0;
};

}  // namespace kavenda
