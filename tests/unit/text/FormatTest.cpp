// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "text/Format.h"

#include <gtest/gtest.h>

namespace kavenda {
namespace {

TEST(Format, Conversions)
{
    EXPECT_EQ(format("%d%02d%02d", {92, 1, 5}), "920105");
    EXPECT_EQ(format("%d%02d%02d", {100, 12, 30}), "1001230");
    EXPECT_EQ(format("%02d:%02d", {0, 7}), "00:07");
    EXPECT_EQ(format("%d:%d", {23, 5}), "23:5");
    EXPECT_EQ(format("92%02i", {3}), "9203");
    EXPECT_EQ(format("b.StateID = %D", {-4}), "b.StateID = -4");
    EXPECT_EQ(format("%i %02d", {-7, -3}), "-7 -3");
    EXPECT_EQ(format("اذان %@ به افق %@", {"صبح", "تهران"}), "اذان صبح به افق تهران");
    EXPECT_EQ(format("100%% %@", {"sure"}), "100% sure");
    EXPECT_EQ(format("%d.wav", {10}), "10.wav");
}

TEST(Format, MissingArgumentsWriteNothing)
{
    EXPECT_EQ(format("a %d b %@ c", {1}), "a 1 b  c");
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

}  // namespace
}  // namespace kavenda
