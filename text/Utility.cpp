// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "text/Utility.h"

namespace kavenda {

namespace {

void replaceAll(std::string& text, std::string_view from, std::string_view to)
{
    // UTF-8 is self-synchronising: a whole encoded character never matches inside another one.
    for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
}

}  // namespace

std::string Utility::ConvertToPersian(std::string_view text)
{
    std::string out;
    out.reserve(text.size() * 2);
    for (char c : text) {
        if (c >= '0' && c <= '9') {
            // U+0660 + d encodes as D9 A0+d.
            out += static_cast<char>(0xD9);
            out += static_cast<char>(0xA0 + (c - '0'));
        } else {
            out += c;
        }
    }
    return out;
}

std::string Utility::GetProperString(std::string_view text)
{
    std::string out(text);
    replaceAll(out, "\u064A", "\u06CC");
    replaceAll(out, "\u0649", "\u06CC");
    replaceAll(out, "\u0643", "\u06A9");
    return out;
}

}  // namespace kavenda
