// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "text/Format.h"
#include "text/Utility.h"

#include <gtest/gtest.h>

namespace kavenda {
namespace {

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

// Typed searches are matched in these forms (kaf and yeh are also searched in CitySearchTest).
TEST(GetProperString, UsesPersianFormsOfYehAndKaf)
{
    EXPECT_EQ(Utility::GetProperString("مصطفى علي"), "مصطفی علی");
    EXPECT_EQ(Utility::GetProperString("Kerman كرج 12"), "Kerman کرج 12");
}

}  // namespace
}  // namespace kavenda
