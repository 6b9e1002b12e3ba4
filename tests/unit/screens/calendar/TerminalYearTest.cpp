// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "screens/calendar/TerminalYear.h"

#include "desktop/IcuPersianCalendar.h"
#include "tests/unit/tools/database/ShippedIcons.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <vector>

namespace kavenda {
namespace {

// The lines as a terminal shows them: the zero-width left-to-right marks left out.
std::vector<std::string> lines(const std::string& text)
{
    std::vector<std::string> found;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) {
        for (std::size_t mark; (mark = line.find("\u200e")) != std::string::npos;)
            line.erase(mark, 3);
        found.push_back(line);
    }
    return found;
}

// Terminal columns: one for each character, escapes aside.
std::size_t columns(const std::string& line)
{
    std::size_t count = 0;
    for (std::size_t i = 0; i < line.size(); ++i) {
        if (line[i] == '\x1b')
            i = line.find('m', i);
        else if ((static_cast<unsigned char>(line[i]) & 0xC0) != 0x80)
            ++count;
    }
    return count;
}

class TerminalYearTest : public test::ShippedIcons {
protected:
    IcuPersianCalendar calendar;
    TerminalYear year{db, calendar};
};

TEST_F(TerminalYearTest, Prints1405AsTwelveMonthsThreeAcross)
{
    const std::optional<std::string> printed = year.print(1405, false);
    ASSERT_TRUE(printed);
    const std::vector<std::string> text = lines(*printed);
    EXPECT_EQ(text[0], std::string(31, ' ') + "١٤٠٥");
    // Three names on the first row of months, the weekday initials under each.
    EXPECT_EQ(text[2].find("فروردین"), 7u) << text[2];
    EXPECT_NE(text[2].find("خرداد"), std::string::npos);
    EXPECT_EQ(text[3], "  ش  ی  د  س  چ  پ  ج    ش  ی  د  س  چ  پ  ج    ش  ی  د  س  چ  پ  ج");
    // 1 Farvardin 1405 is a Saturday: the first column of its first week.
    EXPECT_EQ(text[4].substr(0, 4), "  ١") << text[4];
    for (const char* month : {"تیر", "مهر", "دی", "اسفند"})
        EXPECT_NE(printed->find(month), std::string::npos) << month;
    for (const std::string& line : text)
        EXPECT_LE(columns(line), 80u) << line;
    EXPECT_EQ(printed->find('\x1b'), std::string::npos);
}

TEST_F(TerminalYearTest, ColoursHolidaysOnATerminal)
{
    const std::string red = "\x1b[31m";
    const std::string plain = "\x1b[0m";
    const std::vector<std::string> text = lines(*year.print(1405, true));
    // 1 to 4 Farvardin (Saturday to Tuesday) are holidays, 5 is not, Friday 7 is coloured.
    const std::string& week = text[4];
    EXPECT_EQ(week.find(' ' + red + " ١" + plain + ' ' + red + " ٢" + plain + ' ' + red + " ٣" + plain + ' ' + red
                        + " ٤" + plain + "  ٥  ٦ " + red + " ٧" + plain),
              0u)
        << week;
    for (const std::string& line : text)
        EXPECT_LE(columns(line), 80u) << line;
}

TEST_F(TerminalYearTest, NoneForAYearOutsideTheData)
{
    EXPECT_FALSE(year.print(1200, false));
}

}  // namespace
}  // namespace kavenda
