// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "screens/cities/ChosenCities.h"

#include "screens/cities/SelectionControllerDelegate.h"
#include "tests/unit/screens/cities/CitiesFixture.h"

namespace kavenda {
namespace {

// Remembers how many reminder rebuilds had run when the options were closed.
struct ClosingDelegate final : SelectionControllerDelegate {
    explicit ClosingDelegate(const int& rebuildCount) : rebuilds(rebuildCount) {}
    void closeForm() override { rebuildsAtClose.push_back(rebuilds); }
    const int& rebuilds;
    std::vector<int> rebuildsAtClose;
};

class ChosenCitiesTest : public test::CitiesFixture {
protected:
    std::vector<std::string> names()
    {
        std::vector<std::string> found;
        for (int row = 0; row < cities.count(); ++row)
            found.push_back(cities.nameAt(row));
        return found;
    }

    int rebuilds = 0;
    ChosenCities cities{db, [this] { ++rebuilds; }};
};

TEST_F(ChosenCitiesTest, ListsTheChosenCitiesWithTheirProvinceInAscendingOrdering)
{
    choose(35, 7);
    choose(32, 2);
    choose(63, 5);
    cities.updateDataSource();
    EXPECT_EQ(names(), (std::vector<std::string>{"تهران (تهران)", "شهریار (تهران)", "کرمان (کرمان)"}));
    EXPECT_EQ(cities.stateIdAt(1), 63);
}

// A shipped city (62) keeps its place and offset row; one of the user's own (63) loses both,
// and its centre keeps its days.
TEST_F(ChosenCitiesTest, RemovingACityDeletesOnlyAUserMadePlace)
{
    const int centreDays = count("SELECT COUNT(*) FROM tTimes WHERE StateID = 32");
    for (const auto& [removed, rowsLeft] : {std::pair{62, 1}, std::pair{63, 0}}) {
        exec("DELETE FROM tSelectedStates");
        choose(32, 0);
        choose(removed, 1);
        cities.updateDataSource();
        EXPECT_TRUE(cities.remove(1));
        EXPECT_EQ(orderings(), (std::vector<std::string>{"32:0"}));
        EXPECT_EQ(names(), (std::vector<std::string>{"تهران (تهران)"}));
        const std::string id = std::to_string(removed);
        EXPECT_EQ(count("SELECT COUNT(*) FROM tStates WHERE StateID = " + id), rowsLeft) << removed;
        EXPECT_EQ(count("SELECT COUNT(*) FROM tTimes WHERE StateID = " + id), rowsLeft) << removed;
        EXPECT_EQ(count("SELECT COUNT(*) FROM tTimes WHERE StateID = 32"), centreDays);
    }
}

TEST_F(ChosenCitiesTest, MovesRenumberEveryCityInListOrder)
{
    // W, X, Y, Z = 32, 33, 35, 36 with gaps in their numbering.
    struct Case {
        int from, to;
        std::vector<std::string> expected;
    };
    const std::vector<Case> cases = {
        {0, 2, {"33:0", "35:1", "32:2", "36:3"}},
        {3, 1, {"32:0", "36:1", "33:2", "35:3"}},
        {1, 1, {"32:0", "33:1", "35:2", "36:3"}},
        {1, 9, {"32:0", "35:1", "36:2", "33:3"}},  // a drop past the end lands on the last row
    };
    for (const Case& c : cases) {
        exec("DELETE FROM tSelectedStates");
        choose(32, 1);
        choose(33, 2);
        choose(35, 5);
        choose(36, 9);
        cities.updateDataSource();
        cities.move(c.from, c.to);
        EXPECT_EQ(orderings(), c.expected) << c.from << " to " << c.to;
        // The held list follows the move without a re-read.
        ASSERT_EQ(cities.count(), 4);
        for (int row = 0; row < 4; ++row)
            EXPECT_EQ(std::to_string(cities.stateIdAt(row)) + ":" + std::to_string(row),
                      c.expected[static_cast<std::size_t>(row)]);
    }
    EXPECT_EQ(cities.targetRow(-1), 0);
}

TEST_F(ChosenCitiesTest, TheSearchOpensByItselfOnlyOnTheFirstAppearanceWithoutCities)
{
    EXPECT_TRUE(cities.appear());
    EXPECT_FALSE(cities.canFinish());
    EXPECT_FALSE(cities.preferencesEnabled());
    EXPECT_FALSE(cities.appear()) << "not again after the search was left without a choice";

    ChosenCities withCity(db, [] {});
    choose(32, 0);
    EXPECT_FALSE(withCity.appear());
    EXPECT_TRUE(withCity.canFinish());
    EXPECT_TRUE(withCity.preferencesEnabled());
    withCity.remove(0);
    EXPECT_FALSE(withCity.canFinish());
    EXPECT_FALSE(withCity.appear()) << "emptied later, the list never opens the search itself";
}

TEST_F(ChosenCitiesTest, DoneRebuildsTheRemindersBeforeClosing)
{
    ClosingDelegate delegate(rebuilds);
    cities.Done(&delegate);
    cities.Done(&delegate);
    EXPECT_EQ(delegate.rebuildsAtClose, (std::vector<int>{1, 2}));
}

}  // namespace
}  // namespace kavenda
