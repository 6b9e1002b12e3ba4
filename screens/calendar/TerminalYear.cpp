// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "screens/calendar/TerminalYear.h"

#include "calendar/DateTimePersian.h"
#include "screens/calendar/TerminalMonth.h"
#include "text/Format.h"
#include "text/Utility.h"

#include <algorithm>
#include <array>
#include <vector>

namespace kavenda {

namespace {

constexpr int monthWidth = 21;
constexpr int monthsAcross = 3;
constexpr std::string_view gap = "  ";
constexpr int yearWidth = monthsAcross * monthWidth + (monthsAcross - 1) * static_cast<int>(gap.size());

// Persian letters and digits take one column each; UTF-8 continuation bytes take none.
int columns(const std::string& text)
{
    return static_cast<int>(
        std::count_if(text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

std::string centred(const std::string& text, int width)
{
    const int left = std::max(0, (width - columns(text)) / 2);
    return std::string(static_cast<std::size_t>(left), ' ') + text
        + std::string(static_cast<std::size_t>(std::max(0, width - left - columns(text))), ' ');
}

}  // namespace

TerminalYear::TerminalYear(MyDB& db, const PersianCalendar& calendar) : db_(db), calendar_(calendar)
{
}

std::optional<std::string> TerminalYear::print(int year, bool colour) const
{
    const std::optional<std::array<std::vector<std::string>, 12>> weeks =
        TerminalMonth(db_, calendar_).yearWeeks(year, colour);
    if (!weeks)
        return std::nullopt;
    std::string out = TerminalMonth::withoutTrailingBlanks(centred(Utility::ConvertToPersian(format("%d", {year})), yearWidth)) + '\n';
    for (int first = 1; first <= 12; first += monthsAcross) {
        std::array<std::vector<std::string>, monthsAcross> blocks;
        std::size_t height = 0;
        for (int i = 0; i < monthsAcross; ++i) {
            blocks[i] = {centred(DateTimePersian::getMonthName(first + i - 1), monthWidth),
                         TerminalMonth::weekdayLine()};
            const std::vector<std::string>& month = (*weeks)[static_cast<std::size_t>(first + i - 1)];
            blocks[i].insert(blocks[i].end(), month.begin(), month.end());
            height = std::max(height, blocks[i].size());
        }
        out += '\n';
        for (std::size_t row = 0; row < height; ++row) {
            std::string line;
            for (int i = 0; i < monthsAcross; ++i) {
                line += (i == 0 ? "" : std::string(gap));
                line += row < blocks[i].size() ? blocks[i][row] : std::string(monthWidth, ' ');
            }
            out += TerminalMonth::withoutTrailingBlanks(line) + '\n';
        }
    }
    return out;
}

}  // namespace kavenda
