// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "text/Utility.h"

#include <gtest/gtest.h>

namespace kavenda {
namespace {

TEST(ConvertToPersian, ReplacesOnlyAsciiDigits)
{
    const struct {
        const char* in;
        const char* out;
        // clang-format off
    } cases[] = {
        {"05:42", "\u0660\u0665:\u0664\u0662"},
        {"05 فروردین", "\u0660\u0665 فروردین"},
        {"-10", "-\u0661\u0660"},
        {"0123456789", "\u0660\u0661\u0662\u0663\u0664\u0665\u0666\u0667\u0668\u0669"},
        {"\u06F1\u06F2 \u0661", "\u06F1\u06F2 \u0661"},   // Persian and Arabic-Indic digits stay
        {"Tehran 3 تهران", "Tehran \u0663 تهران"},
        {"😀7", "😀\u0667"},
        {"", ""},
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
        {"مصطفى", "مصطفی"},
        {"كرمان", "کرمان"},
        {"يزد كاشان", "یزد کاشان"},
        {"تهران", "تهران"},
        {"Kerman كرج 12", "Kerman کرج 12"},
        {"", ""},
    };
    // clang-format on
    for (const auto& c : cases)
        EXPECT_EQ(Utility::GetProperString(c.in), c.out) << c.in;
}

}  // namespace
}  // namespace kavenda
