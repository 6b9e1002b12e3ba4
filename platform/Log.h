// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>

namespace kavenda {

// The platform log: plain lines, no levels.
class Log {
public:
    virtual ~Log() = default;
    virtual void line(const std::string& text) = 0;
};

}  // namespace kavenda
