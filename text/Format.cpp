// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "text/Format.h"

#include <cstdio>

namespace kavenda {

namespace {

std::string decimal(long long value, bool twoDigits)
{
    char buffer[32];
    std::snprintf(buffer, sizeof buffer, twoDigits ? "%02lld" : "%lld", value);
    return buffer;
}

std::string quotesDoubled(std::string_view text)
{
    std::string out;
    out.reserve(text.size());
    for (char c : text) {
        out += c;
        if (c == '\'')
            out += '\'';
    }
    return out;
}

std::string formatWith(std::string_view pattern, std::initializer_list<FormatArg> args, bool sql)
{
    std::string out;
    out.reserve(pattern.size() + 32);
    auto next = args.begin();
    bool inLiteral = false;
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        const char c = pattern[i];
        if (c != '%') {
            if (c == '\'')
                inLiteral = !inLiteral;
            out += c;
            continue;
        }
        const std::string_view rest = pattern.substr(i + 1);
        if (rest.starts_with('%')) {
            out += '%';
            i += 1;
            continue;
        }
        const bool twoDigits = rest.starts_with("02");
        const std::size_t at = twoDigits ? 2 : 0;
        if (at >= rest.size()) {
            out += c;
            continue;
        }
        const char conversion = rest[at];
        i += at + 1;
        if (next == args.end())
            continue;
        const FormatArg& arg = *next++;
        if (conversion == '@') {
            const std::string_view text =
                std::holds_alternative<std::string_view>(arg) ? std::get<std::string_view>(arg) : "";
            out += (sql && inLiteral) ? quotesDoubled(text) : std::string(text);
        } else if (std::holds_alternative<long long>(arg)) {
            out += decimal(std::get<long long>(arg), twoDigits);
        }
    }
    return out;
}

}  // namespace

std::string format(std::string_view pattern, std::initializer_list<FormatArg> args)
{
    return formatWith(pattern, args, false);
}

std::string formatSql(std::string_view pattern, std::initializer_list<FormatArg> args)
{
    return formatWith(pattern, args, true);
}

}  // namespace kavenda
