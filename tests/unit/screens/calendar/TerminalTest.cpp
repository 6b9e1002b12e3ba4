// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "screens/calendar/TerminalMonth.h"
#include "screens/calendar/TerminalYear.h"

#include "desktop/SystemPersianCalendar.h"
#include "tests/support/FixtureDatabase.h"

#include <sstream>

namespace kavenda {
namespace {

const std::string mark = "\u200e";

// The lines printed, as a terminal without directional marks shows them unless marks are asked.
std::vector<std::string> lines(const std::string& text, bool marks = false)
{
    std::vector<std::string> found;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line); found.push_back(line))
        for (std::size_t at; !marks && (at = line.find(mark)) != std::string::npos;)
            line.erase(at, mark.size());
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

class TerminalTest : public test::WorkingCopy {
protected:
    TerminalTest() : WorkingCopy({}) {}

    SystemPersianCalendar calendar;
    TerminalMonth month{db, calendar};
    TerminalYear year{db, calendar};
};

TEST(TerminalMonthParse, TakesAPersianYearAndMonth)
{
    using YM = TerminalMonth::YearMonth;
    EXPECT_EQ(TerminalMonth::parse("1392-01"), (YM{1392, 1}));
    EXPECT_EQ(TerminalMonth::parse("1405-12"), (YM{1405, 12}));
    EXPECT_EQ(TerminalMonth::parse("1392-7"), (YM{1392, 7}));
    for (const char* bad :
         {"1392-13", "1392-00", "92-01", "1392", "1392-", "abcd-01", "1392-001", "1392-1a", "-1392-01", ""})
        EXPECT_FALSE(TerminalMonth::parse(bad)) << bad;
}

TEST_F(TerminalTest, PrintsFarvardin1392WithItsHolidays)
{
    const std::optional<std::string> printed = month.print({1392, 1}, false);
    ASSERT_TRUE(printed);
    const std::vector<std::string> expected{
        "فروردین ١٣٩٢",
        "  ش  ی  د  س  چ  پ  ج",
        std::string(15, ' ') + "  ١  ٢",
        "  ٣  ٤  ٥  ٦  ٧  ٨  ٩",
        " ١٠ ١١ ١٢ ١٣ ١٤ ١٥ ١٦",
        " ١٧ ١٨ ١٩ ٢٠ ٢١ ٢٢ ٢٣",
        " ٢٤ ٢٥ ٢٦ ٢٧ ٢٨ ٢٩ ٣٠",
        " ٣١",
        "",
        "١* آغاز نوروز",
        "٢* عید نوروز",
        "٣* عید نوروز",
        "٤* عید نوروز",
        "١٢* روز جمهوری اسلامی ایران",
        "١٣* روز طبیعت",
        "٢٠ روز ملی فناوری هسته‌ای؛ روز هنر انقلاب اسلامی",
        "٢٥* شهادت حضرت فاطمه زهرا (س) - روز بزرگداشت عطار نیشابوری",
        "٢٩ روز ارتش جمهوری اسلامی ایران",
    };
    EXPECT_EQ(lines(*printed), expected);
}

// Every cell of the grid, weekday or day, opens with a left-to-right mark, three columns wide: 1
// Azar 1405, a Sunday, stands under "ی" whether or not the terminal reorders the line.
TEST_F(TerminalTest, TheGridKeepsItsColumnsInEveryTerminal)
{
    const std::vector<std::string> azar = lines(*month.print({1405, 9}, false), true);
    const auto cells = [](const std::string& line) {
        std::vector<std::string> found;
        for (std::size_t at = line.find(mark); at != std::string::npos;) {
            const std::size_t next = line.find(mark, at + mark.size());
            found.push_back(line.substr(at + mark.size(), next == std::string::npos ? next : next - at - mark.size()));
            at = next;
        }
        return found;
    };
    ASSERT_EQ(cells(azar[1]).size(), 7u);
    EXPECT_EQ(cells(azar[1])[1], "  ی");
    EXPECT_EQ(azar[2].substr(0, 3), "   ");  // Saturday empty
    EXPECT_EQ(cells(azar[2]).front(), "  ١");
    EXPECT_EQ(cells(azar[2]).size(), 6u);
    for (std::size_t row = 3; row <= 5; ++row)
        EXPECT_EQ(cells(azar[row]).size(), 7u) << row;
}

TEST_F(TerminalTest, LaterYearsAndMonthsOutsideTheData)
{
    // Esfand 1408 has 30 days and starts on a Tuesday (336 days after Tuesday 1 Farvardin).
    const std::vector<std::string> esfand = lines(*month.print({1408, 12}, false));
    EXPECT_EQ(esfand[0], "اسفند ١٤٠٨");
    EXPECT_EQ(esfand[2], std::string(9, ' ') + "  ١  ٢  ٣  ٤");
    EXPECT_EQ(esfand[6], " ٢٦ ٢٧ ٢٨ ٢٩ ٣٠");
    EXPECT_EQ(esfand[7], "");
    EXPECT_FALSE(month.print({1391, 12}, false));
    EXPECT_FALSE(month.print({1411, 1}, false));
    EXPECT_FALSE(year.print(1200, false));
}

TEST_F(TerminalTest, Prints1405AsTwelveMonthsThreeAcross)
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
    for (const char* name : {"تیر", "مهر", "دی", "اسفند"})
        EXPECT_NE(printed->find(name), std::string::npos) << name;
}

// Holidays and Fridays in red, and only when asked. Farvardin 1392: Thursday 1 (a holiday),
// Friday 2; Friday 9 is no holiday in the data but is coloured. 1405: 1 to 4 Farvardin (Saturday
// to Tuesday) are holidays, 5 is not, Friday 7 is coloured.
TEST_F(TerminalTest, ColoursHolidaysAndFridaysOnlyWhenAsked)
{
    const auto red = [](const char* day) { return std::string("\x1b[31m") + day + "\x1b[0m"; };
    const std::vector<std::string> farvardin = lines(*month.print({1392, 1}, true));
    EXPECT_EQ(farvardin[2], std::string(15, ' ') + ' ' + red(" ١") + ' ' + red(" ٢"));
    EXPECT_EQ(farvardin[3], ' ' + red(" ٣") + ' ' + red(" ٤") + "  ٥  ٦  ٧  ٨ " + red(" ٩"));
    EXPECT_EQ(farvardin[9], red("١*") + " آغاز نوروز");
    EXPECT_EQ(farvardin[15],
              "٢٠ روز ملی فناوری هسته‌ای؛ روز هنر انقلاب اسلامی");
    const std::vector<std::string> year1405 = lines(*year.print(1405, true));
    EXPECT_EQ(
        year1405[4].find(' ' + red(" ١") + ' ' + red(" ٢") + ' ' + red(" ٣") + ' ' + red(" ٤") + "  ٥  ٦ " + red(" ٧")),
        0u)
        << year1405[4];
    for (const std::string& line : year1405)
        EXPECT_LE(columns(line), 80u) << line;
    EXPECT_EQ(month.print({1392, 1}, false)->find('\x1b'), std::string::npos);
    EXPECT_EQ(year.print(1405, false)->find('\x1b'), std::string::npos);
}

}  // namespace
}  // namespace kavenda
