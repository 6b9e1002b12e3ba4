// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "data/NameMatching.h"

#include <sqlite3.h>

namespace kavenda {

namespace {

constexpr char32_t zeroWidthNonJoiner = 0x200C;
constexpr char32_t endOfText = 0xFFFFFFFF;

// The code point at `at`, moving `at` past it and past the non-joiners; a byte that starts no
// valid sequence stands for itself. Read in place: this runs once for every row a LIKE sees.
char32_t next(std::string_view text, std::size_t& at)
{
    while (at < text.size()) {
        const auto lead = static_cast<unsigned char>(text[at]);
        const std::size_t length = lead < 0x80 ? 1
            : (lead >> 5) == 0x6               ? 2
            : (lead >> 4) == 0xE               ? 3
            : (lead >> 3) == 0x1E              ? 4
                                               : 0;
        char32_t code = length == 1 ? lead : length == 2 ? lead & 0x1F : length == 3 ? lead & 0x0F : lead & 0x07;
        bool valid = length > 0 && at + length <= text.size();
        for (std::size_t k = 1; valid && k < length; ++k) {
            const auto following = static_cast<unsigned char>(text[at + k]);
            valid = (following & 0xC0) == 0x80;
            code = (code << 6) | (following & 0x3F);
        }
        at += valid ? length : 1;
        if (!valid)
            return lead;
        if (code != zeroWidthNonJoiner)
            return code;
    }
    return endOfText;
}

char32_t folded(char32_t c)
{
    return c >= U'A' && c <= U'Z' ? c - U'A' + U'a' : c;
}

void like(sqlite3_context* context, int, sqlite3_value** arguments)
{
    const auto* pattern = sqlite3_value_text(arguments[0]);
    const auto* text = sqlite3_value_text(arguments[1]);
    if (!pattern || !text)
        return;  // NULL, as LIKE gives for a NULL side
    const std::string_view p(reinterpret_cast<const char*>(pattern),
                             static_cast<std::size_t>(sqlite3_value_bytes(arguments[0])));
    const std::string_view t(reinterpret_cast<const char*>(text),
                             static_cast<std::size_t>(sqlite3_value_bytes(arguments[1])));
    sqlite3_result_int(context, likeMatches(p, t) ? 1 : 0);
}

}  // namespace

bool likeMatches(std::string_view pattern, std::string_view text)
{
    std::size_t p = 0, t = 0;
    // Just after the last "%" seen, and the text position it was last tried against.
    std::size_t afterStar = std::string_view::npos, starText = 0;
    for (;;) {
        std::size_t tNext = t;
        const char32_t letter = next(text, tNext);
        if (letter == endOfText)
            break;
        std::size_t pNext = p;
        const char32_t wanted = next(pattern, pNext);
        if (wanted == U'%') {
            afterStar = p = pNext;
            starText = t;
        } else if (wanted != endOfText && (wanted == U'_' || folded(wanted) == folded(letter))) {
            p = pNext;
            t = tNext;
        } else if (afterStar != std::string_view::npos) {
            // The "%" takes one letter more and the rest of the pattern is tried again.
            p = afterStar;
            next(text, starText);
            t = starText;
        } else {
            return false;
        }
    }
    for (;;) {
        const char32_t wanted = next(pattern, p);
        if (wanted == endOfText)
            return true;
        if (wanted != U'%')
            return false;
    }
}

void installNameMatching(sqlite3* database)
{
    sqlite3_create_function(database, "like", 2, SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS, nullptr, &like,
                            nullptr, nullptr);
}

}  // namespace kavenda
