// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "data/IntValue.h"

#include <gtest/gtest.h>

namespace kavenda {
namespace {

TEST(IntValue, ReadsLeadingDigitsLikeThePlatform)
{
    const struct {
        const char* text;
        int value;
        // clang-format off
    } cases[] = {
        {"15", 15}, {"4:35", 4}, {"", 0}, {"abc", 0}, {"  -3", -3}, {"+7x", 7},
        {"-", 0}, {"08", 8}, {"99999999999", 2147483647}, {"-99999999999", -2147483647 - 1},
    };
    // clang-format on
    for (const auto& c : cases)
        EXPECT_EQ(intValue(c.text), c.value) << '"' << c.text << '"';
}

}  // namespace
}  // namespace kavenda
