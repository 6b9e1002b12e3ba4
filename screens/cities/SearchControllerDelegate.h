// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>

namespace kavenda {

// The screen that opened a search: told when the search is over, and in province mode which
// province was picked first.
class SearchControllerDelegate {
public:
    virtual ~SearchControllerDelegate() = default;
    virtual void closeForm() = 0;
    // Only province-mode callers receive it; a city-mode caller has nothing to do with it.
    virtual void setProvince(int /*provinceId*/, const std::string& /*provinceName*/) {}
};

}  // namespace kavenda
