// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "screens/cities/CitySearch.h"

#include "screens/cities/ChosenCities.h"
#include "screens/cities/SearchControllerDelegate.h"
#include "tests/unit/screens/cities/CitiesFixture.h"

#include <algorithm>

namespace kavenda {
namespace {

struct RecordingSearchDelegate final : SearchControllerDelegate {
    void closeForm() override { calls.push_back("closeForm"); }
    void setProvince(int provinceId, const std::string& provinceName) override
    {
        calls.push_back("setProvince " + std::to_string(provinceId) + " " + provinceName);
    }
    std::vector<std::string> calls;
};

class CitySearchTest : public test::CitiesFixture {
protected:
    static std::vector<std::string> names(const CitySearch& search)
    {
        std::vector<std::string> found;
        for (int row = 0; row < search.count(); ++row)
            found.push_back(search.nameAt(row));
        std::sort(found.begin(), found.end());
        return found;
    }

    CitySearch cities{db};
    CitySearch provinces{db, CitySearch::provinceMode};
    RecordingSearchDelegate delegate;
};

TEST_F(CitySearchTest, TypedTextMatchesUnchosenCitiesAndProvincesWithPersianLetterForms)
{
    choose({32});
    const std::pair<const char*, std::vector<std::string>> cases[] = {
        {"", {"اصفهان (اصفهان)", "شهریار (تهران)", "کاشان (اصفهان)", "کرمان (کرمان)", "یزد (یزد)"}},
        {"تهر", {"شهریار (تهران)"}},  // the province's name lists its cities, the chosen one aside
        {"\u0643\u0631\u0645", {"کرمان (کرمان)"}},  // Arabic kaf
        {"\u0634\u0647\u0631\u064A", {"شهریار (تهران)"}},  // Arabic yeh inside a word
        {"'", {}},  // a quote is a letter like any other
        {"x' OR '1'='1", {}},
    };
    for (auto [typed, expected] : cases) {
        cities.textDidChange(typed);
        std::sort(expected.begin(), expected.end());
        EXPECT_EQ(names(cities), expected) << typed;
    }
    provinces.textDidChange("");
    EXPECT_EQ(names(provinces), (std::vector<std::string>{"اصفهان", "تهران", "کرمان", "یزد"}))
        << "provinces whether or not one of their cities is chosen";
    provinces.textDidChange("\u06A9\u0631\u0645\u0627\u0646");
    EXPECT_EQ(names(provinces), (std::vector<std::string>{"کرمان"}));
}

TEST_F(CitySearchTest, AChoiceComesAfterEveryCityAndLeavesTheCandidates)
{
    cities.textDidChange("یزد");
    cities.pick(0, delegate);
    EXPECT_EQ(orderings(), (std::vector<std::string>{"36:1"}));
    EXPECT_EQ(delegate.calls, (std::vector<std::string>{"closeForm"}));
    cities.textDidChange("یزد");
    EXPECT_EQ(cities.count(), 0) << "a chosen city is no candidate any more";

    // After a move renumbered the list, the next choice still comes last.
    exec("INSERT INTO tSelectedStates VALUES(32, 4), (35, 9)");
    ChosenCities list(db, [] {});
    list.updateDataSource();
    list.move(2, 0);
    cities.addState(33);
    EXPECT_EQ(orderings(), (std::vector<std::string>{"35:0", "36:1", "32:2", "33:4"}));
}

TEST_F(CitySearchTest, ProvinceModeHandsTheProvinceBackAndAddsNothing)
{
    provinces.textDidChange("اصف");
    ASSERT_EQ(provinces.count(), 1);
    provinces.pick(0, delegate);
    EXPECT_EQ(delegate.calls, (std::vector<std::string>{"setProvince 2 اصفهان", "closeForm"}));
    EXPECT_TRUE(orderings().empty());
}

}  // namespace
}  // namespace kavenda
