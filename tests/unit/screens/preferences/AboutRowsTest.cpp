// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "screens/preferences/AboutRows.h"

#include "tests/support/RecordingUrlOpener.h"

#include <gtest/gtest.h>

#include <vector>

namespace kavenda {
namespace {

TEST(AboutRowsTest, TheWebRowOpensTheSiteAndEveryOtherRowAMail)
{
    const AboutRows rows("https://example.net/k", "help@example.net");
    test::RecordingUrlOpener urls;
    for (int row = 0; row <= AboutRows::rowCount; ++row)
        rows.didSelectRow(row, urls);
    const std::string mail = "mailto:?to=help@example.net&subject=KavendaV1.5";
    EXPECT_EQ(urls.opened, (std::vector<std::string>{mail, mail, mail, mail, "https://example.net/k"}))
        << "a row past the end opens nothing";
}

}  // namespace
}  // namespace kavenda
