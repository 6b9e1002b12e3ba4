// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "screens/calendar/TerminalMonth.h"

#include "calendar/DateTimePersian.h"
#include "data/MyDB.h"
#include "data/Statements.h"
#include "screens/calendar/MonthGrid.h"
#include "screens/calendar/MonthShape.h"
#include "text/Format.h"
#include "text/Utility.h"

#include <algorithm>
#include <cctype>

namespace kavenda {

namespace {

constexpr std::string_view weekdayInitials[] = {"ش", "ی", "د", "س", "چ", "پ", "ج"};
// Before every cell: the grid runs left to right, Saturday first, in a terminal that applies
// the bidirectional algorithm too; without it, neighbouring numbers would swap places.
constexpr std::string_view leftToRightMark = "\u200e";
constexpr std::string_view holidayColour = "\x1b[31m";
constexpr std::string_view plainColour = "\x1b[0m";
constexpr int friday = 6;

bool allDigits(std::string_view text)
{
    return !text.empty()
        && std::all_of(text.begin(), text.end(), [](char c) { return std::isdigit(static_cast<unsigned char>(c)); });
}

std::string painted(const std::string& text, bool paint)
{
    return paint ? std::string(holidayColour) + text + std::string(plainColour) : text;
}

std::string persianNumber(int value)
{
    return Utility::ConvertToPersian(format("%d", {value}));
}

// Right-aligned in two places.
std::string persianDayCell(int day)
{
    return (day < 10 ? " " : "") + persianNumber(day);
}

bool isHoliday(const RowSet& rows, int day)
{
    return MyDB::getValue(rows, static_cast<std::size_t>(day - 1), "IsHoliday").value_or("") == "1";
}

// Seven cells of three columns a week, the last week padded to the full width too.
std::vector<std::string> weekLines(const RowSet& rows, const MonthShape& shape, bool colour)
{
    std::vector<std::string> weeks;
    std::string week(static_cast<std::size_t>(3 * shape.firstColumn), ' ');
    for (int day = 1; day <= shape.length; ++day) {
        const int column = (shape.firstColumn + day - 1) % 7;
        const bool holiday = column == friday || isHoliday(rows, day);
        week += std::string(leftToRightMark) + ' ' + painted(persianDayCell(day), colour && holiday);
        if (column == friday || day == shape.length) {
            weeks.push_back(week + std::string(static_cast<std::size_t>(3 * (friday - column)), ' '));
            week.clear();
        }
    }
    return weeks;
}

}  // namespace

std::string TerminalMonth::weekdayLine()
{
    std::string line;
    for (std::string_view initial : weekdayInitials)
        line += std::string(leftToRightMark) + "  " + std::string(initial);
    return line;
}

std::string TerminalMonth::withoutTrailingBlanks(std::string line)
{
    line.erase(line.find_last_not_of(' ') + 1);
    return line;
}

RowSet TerminalMonth::rows(YearMonth first, YearMonth last) const
{
    const auto key = [](YearMonth month, int day) {
        return std::stoi(format(sql::monthPattern, {month.year % 1300, month.month})) * 100 + day;
    };
    return db_.Execute(format(sql::monthEventsByKey, {key(first, 1), key(last, 31)}));
}

TerminalMonth::TerminalMonth(MyDB& db, const PersianCalendar& calendar) : db_(db), calendar_(calendar)
{
}

std::optional<TerminalMonth::YearMonth> TerminalMonth::parse(std::string_view text)
{
    const std::size_t dash = text.find('-');
    if (dash == std::string_view::npos)
        return std::nullopt;
    const std::string_view year = text.substr(0, dash);
    const std::string_view month = text.substr(dash + 1);
    if (year.size() != 4 || !allDigits(year) || month.size() > 2 || !allDigits(month))
        return std::nullopt;
    const YearMonth parsed{std::stoi(std::string(year)), std::stoi(std::string(month))};
    if (parsed.month < 1 || parsed.month > 12)
        return std::nullopt;
    return parsed;
}

std::optional<std::string> TerminalMonth::print(YearMonth month, bool colour) const
{
    const RowSet rows = this->rows(month, month);
    if (rows.empty())
        return std::nullopt;
    const MonthShape shape = MonthShape::of(calendar_, month.year, month.month - 1);
    const auto value = [&rows](int day, const char* column) {
        return MyDB::getValue(rows, static_cast<std::size_t>(day - 1), column).value_or("");
    };

    std::string out = DateTimePersian::getMonthName(month.month - 1) + ' ' + persianNumber(month.year) + '\n';
    out += weekdayLine() + '\n';
    for (const std::string& week : weekLines(rows, shape, colour))
        out += withoutTrailingBlanks(week) + '\n';
    out += '\n';
    for (int day = 1; day <= shape.length; ++day) {
        const std::string description = value(day, "Description");
        if (description.empty())
            continue;
        const bool holiday = isHoliday(rows, day);
        std::string line = painted(persianNumber(day) + (holiday ? "*" : ""), colour && holiday) + ' ';
        const std::vector<std::string> occasions = MonthGrid::occasions(description);
        for (std::size_t i = 0; i < occasions.size(); ++i)
            line += (i == 0 ? "" : " - ") + occasions[i];
        out += line + '\n';
    }
    return out;
}

std::optional<std::array<std::vector<std::string>, 12>> TerminalMonth::yearWeeks(int year, bool colour) const
{
    // One query for the year: each one opens the file anew.
    const RowSet days = rows({year, 1}, {year, 12});
    std::array<std::vector<std::string>, 12> weeks;
    auto next = days.begin();
    for (int month = 1; month <= 12; ++month) {
        const MonthShape shape = MonthShape::of(calendar_, year, month - 1);
        if (days.end() - next < shape.length)
            return std::nullopt;
        weeks[static_cast<std::size_t>(month - 1)] = weekLines(RowSet(next, next + shape.length), shape, colour);
        next += shape.length;
    }
    return weeks;
}

}  // namespace kavenda
