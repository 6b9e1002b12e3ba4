#include "data/NameMatching.h"

#include <sqlite3.h>

#include <vector>

namespace kavenda {

namespace {

constexpr char32_t zeroWidthNonJoiner = 0x200C;

// Code points without the non-joiners; a byte that starts no valid sequence stands for itself.
std::vector<char32_t> letters(std::string_view text)
{
    std::vector<char32_t> out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size();) {
        const auto lead = static_cast<unsigned char>(text[i]);
        const std::size_t length = lead < 0x80 ? 1 : (lead >> 5) == 0x6 ? 2 : (lead >> 4) == 0xE ? 3
                                 : (lead >> 3) == 0x1E ? 4 : 0;
        char32_t code = length == 1 ? lead : length == 2 ? lead & 0x1F : length == 3 ? lead & 0x0F : lead & 0x07;
        bool valid = length > 0 && i + length <= text.size();
        for (std::size_t k = 1; valid && k < length; ++k) {
            const auto next = static_cast<unsigned char>(text[i + k]);
            valid = (next & 0xC0) == 0x80;
            code = (code << 6) | (next & 0x3F);
        }
        if (!valid) {
            code = lead;
            i += 1;
        } else {
            i += length;
        }
        if (code != zeroWidthNonJoiner)
            out.push_back(code);
    }
    return out;
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
    const std::vector<char32_t> p = letters(pattern);
    const std::vector<char32_t> t = letters(text);
    std::size_t pi = 0, ti = 0;
    // The last "%" seen and the text position it was tried against, to try one letter further.
    std::size_t starAt = p.size(), starText = 0;
    while (ti < t.size()) {
        if (pi < p.size() && p[pi] == U'%') {
            starAt = pi++;
            starText = ti;
        } else if (pi < p.size() && (p[pi] == U'_' || folded(p[pi]) == folded(t[ti]))) {
            ++pi;
            ++ti;
        } else if (starAt < p.size()) {
            pi = starAt + 1;
            ti = ++starText;
        } else {
            return false;
        }
    }
    while (pi < p.size() && p[pi] == U'%')
        ++pi;
    return pi == p.size();
}

void installNameMatching(sqlite3* database)
{
    sqlite3_create_function(database, "like", 2, SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS, nullptr,
                            &like, nullptr, nullptr);
}

}  // namespace kavenda
