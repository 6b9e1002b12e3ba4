// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <string_view>

namespace kavenda {

// Persian forms of numbers and letters, on UTF-8 texts.
class Utility {
public:
    // ASCII digits become Arabic-Indic digits (U+0660 to U+0669); nothing else changes.
    static std::string ConvertToPersian(std::string_view text);
    // Arabic yeh and alef maksura become Farsi yeh, Arabic kaf becomes keheh.
    static std::string GetProperString(std::string_view text);
};

}  // namespace kavenda
