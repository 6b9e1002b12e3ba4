// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>

namespace kavenda {

class UrlOpener {
public:
    virtual ~UrlOpener() = default;
    virtual void open(const std::string& address) = 0;
};

}  // namespace kavenda
