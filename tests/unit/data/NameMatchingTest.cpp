// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "data/NameMatching.h"

#include "tests/support/FixtureDatabase.h"

namespace kavenda {
namespace {

constexpr const char* joiner = "\u200C";

TEST(NameMatching, MatchesAsLikeDoesWithoutMindingNonJoiners)
{
    const std::string withJoiner = std::string("خرم") + joiner + "آباد";
    const struct {
        std::string pattern;
        std::string text;
        bool matches;
        // clang-format off
    } cases[] = {
        {"%%", "تهران", true},
        {"%هرا", "تهران", false},
        {"ته%", "تهران", true},
        {"ت_ران", "تهران", true},     // "_" is one letter, not one byte
        {"%ABC%", "xabcx", true},      // Latin letters in either case
        {"%ي%", "ی", false},           // Arabic and Persian yeh stay different letters
        {"%a%b%c", "aXbXbc", true},    // a later try of a "%" after a first one failed
        {"%خرمآباد%", withJoiner, true},
        {"%" + withJoiner + "%", "خرمآباد", true},
        {std::string("%خرم") + joiner + "%", "شهر خرمآباد", true},
        {"%خرم آباد%", withJoiner, false},  // a blank is not a non-joiner
        {"9201__", "9201011", false},
        {std::string("\xFF%"), "\xFF" "x", true},  // a stray byte matches itself
    };
    // clang-format on
    for (const auto& c : cases)
        EXPECT_EQ(likeMatches(c.pattern, c.text), c.matches) << c.pattern << " / " << c.text;
}

using NameMatchingInTheDatabase = test::WorkingCopy;

TEST_F(NameMatchingInTheDatabase, EveryLikeMatchesThatWay)
{
    ASSERT_TRUE(db.ExecuteNonQuery(std::string("INSERT INTO tStates(StateID, Name, ParentID) VALUES(9, 'خرم") + joiner
                                   + "آباد', 1)"));
    EXPECT_EQ(db.ExecuteScaler("SELECT StateID FROM tStates WHERE Name LIKE '%خرمآباد%'"), "9");
    EXPECT_EQ(db.ExecuteScaler("SELECT COUNT(*) FROM tEvents WHERE Date LIKE '9202__'"),
              db.ExecuteScaler("SELECT COUNT(*) FROM tEvents WHERE Date BETWEEN 920200 AND 920299"))
        << "integer date keys are matched by their decimal text";
}

}  // namespace
}  // namespace kavenda
