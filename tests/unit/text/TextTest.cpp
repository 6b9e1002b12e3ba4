// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "text/Format.h"
#include "text/Utility.h"

#include <gtest/gtest.h>

namespace kavenda {
namespace {

TEST(Format, Conversions)
{
    EXPECT_EQ(format("%d%02d%02d", {100, 1, 5}), "1000105");
    EXPECT_EQ(format("92%02i %D", {3, -4}), "9203 -4");
    EXPECT_EQ(format("%i %02d", {-7, -3}), "-7 -3");
    EXPECT_EQ(format("اذان %@ به افق %@", {"صبح", "تهران"}), "اذان صبح به افق تهران");
    EXPECT_EQ(format("100%% %@", {"sure"}), "100% sure");
    EXPECT_EQ(format("a %d b %@ c", {1}), "a 1 b  c") << "missing arguments write nothing";
}

TEST(FormatSql, DoublesQuotesOnlyInsideLiterals)
{
    EXPECT_EQ(formatSql("VALUES('%@', %d, 0)", {"Shah's", 3}), "VALUES('Shah''s', 3, 0)");
    EXPECT_EQ(formatSql("LIKE '%%%@%%'", {"o'k"}), "LIKE '%o''k%'");
    // Outside quotes a text is statement text and stays as it is.
    EXPECT_EQ(formatSql("UPDATE t SET %@", {"Item7='0'"}), "UPDATE t SET Item7='0'");
    // A literal that closes before the conversion does not count.
    EXPECT_EQ(formatSql("Name || ' (' || %@", {"x'"}), "Name || ' (' || x'");
    // "%" and "_" typed by the user stay wildcards.
    EXPECT_EQ(formatSql("LIKE '%%%@%%'", {"a_%"}), "LIKE '%a_%%'");
}

TEST(ConvertToPersian, ReplacesOnlyAsciiDigits)
{
    const struct {
        const char* in;
        const char* out;
        // clang-format off
    } cases[] = {
        {"05:42", "\u0660\u0665:\u0664\u0662"},
        {"0123456789", "\u0660\u0661\u0662\u0663\u0664\u0665\u0666\u0667\u0668\u0669"},
        {"\u06F1\u06F2 \u0661", "\u06F1\u06F2 \u0661"},   // Persian and Arabic-Indic digits stay
        {"Tehran 3 تهران", "Tehran \u0663 تهران"},
        {"😀7", "😀\u0667"},
    };
    // clang-format on
    for (const auto& c : cases)
        EXPECT_EQ(Utility::ConvertToPersian(c.in), c.out) << c.in;
}

TEST(GetProperString, UsesPersianFormsOfYehAndKaf)
{
    const struct {
        const char* in;
        const char* out;
        // clang-format off
    } cases[] = {
        {"علي", "علی"},
        {"كرمان", "کرمان"},
        {"يزد كاشان", "یزد کاشان"},
        {"Kerman كرج 12", "Kerman کرج 12"},
        {"", ""},
    };
    // clang-format on
    for (const auto& c : cases)
        EXPECT_EQ(Utility::GetProperString(c.in), c.out) << c.in;
}

}  // namespace
}  // namespace kavenda
