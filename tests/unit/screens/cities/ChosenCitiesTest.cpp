// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "screens/cities/ChosenCities.h"
#include "screens/cities/CitySearch.h"

#include "screens/cities/SearchControllerDelegate.h"
#include "screens/cities/SelectionControllerDelegate.h"
#include "screens/preferences/OccasionTime.h"
#include "screens/preferences/ReminderSettings.h"
#include "screens/preferences/SoundChoice.h"
#include "tests/unit/screens/cities/CitiesFixture.h"

#include <algorithm>
#include <functional>
#include <tuple>

namespace kavenda {
namespace {

// The city screens; also the delegate of the options (remembering how many reminder rebuilds had
// run when they closed) and of the search.
class ChosenCitiesTest : public test::CitiesFixture,
                         public SelectionControllerDelegate,
                         public SearchControllerDelegate {
protected:
    void closeForm() override
    {
        rebuildsAtClose.push_back(rebuilds);
        calls.push_back("closeForm");
    }
    void setProvince(int provinceId, const std::string& provinceName) override
    {
        calls.push_back("setProvince " + std::to_string(provinceId) + " " + provinceName);
    }

    template <typename List> static std::vector<std::string> names(const List& list, bool sorted = false)
    {
        std::vector<std::string> found;
        for (int row = 0; row < list.count(); ++row)
            found.push_back(list.nameAt(row));
        if (sorted)
            std::sort(found.begin(), found.end());
        return found;
    }

    // A write the database refuses until allowed again.
    void refuse(const std::string& table, const std::string& action)
    {
        exec("CREATE TRIGGER refuse BEFORE " + action + " ON " + table + " BEGIN SELECT RAISE(ABORT, 'full'); END");
    }
    void allow() { exec("DROP TRIGGER refuse"); }

    int rebuilds = 0;
    std::vector<int> rebuildsAtClose;
    std::vector<std::string> calls;
    ChosenCities cities{db, [this] { ++rebuilds; }};
    CitySearch search{db};
    CitySearch provinces{db, CitySearch::provinceMode};
};
using CitySearchTest = ChosenCitiesTest;
using FailedWritesTest = ChosenCitiesTest;

TEST_F(ChosenCitiesTest, ListsTheChosenCitiesWithTheirProvinceInAscendingOrdering)
{
    exec("INSERT INTO tSelectedStates VALUES(35, 7), (32, 2), (63, 5)");
    cities.updateDataSource();
    EXPECT_EQ(names(cities), (std::vector<std::string>{"تهران (تهران)", "شهریار (تهران)", "کرمان (کرمان)"}));
    EXPECT_EQ(cities.stateIdAt(1), 63);
}

// A shipped city (62) keeps its place and offset row; one of the user's own (63) loses both,
// and its centre keeps its days.
TEST_F(ChosenCitiesTest, RemovingACityDeletesOnlyAUserMadePlace)
{
    const int centreDays = count("SELECT COUNT(*) FROM tTimes WHERE StateID = 32");
    for (const auto& [removed, rowsLeft] : {std::pair{62, 1}, std::pair{63, 0}}) {
        exec("DELETE FROM tSelectedStates");
        choose({32, removed});
        cities.updateDataSource();
        EXPECT_TRUE(cities.remove(1));
        EXPECT_EQ(orderings(), (std::vector<std::string>{"32:0"}));
        EXPECT_EQ(names(cities), (std::vector<std::string>{"تهران (تهران)"}));
        const std::string id = std::to_string(removed);
        EXPECT_EQ(count("SELECT COUNT(*) FROM tStates WHERE StateID = " + id), rowsLeft) << removed;
        EXPECT_EQ(count("SELECT COUNT(*) FROM tTimes WHERE StateID = " + id), rowsLeft) << removed;
        EXPECT_EQ(count("SELECT COUNT(*) FROM tTimes WHERE StateID = 32"), centreDays);
    }
}

TEST_F(ChosenCitiesTest, MovesRenumberEveryCityInListOrder)
{
    // W, X, Y, Z = 32, 33, 35, 36 with gaps in their numbering; a drop past the end lands last.
    const std::tuple<int, int, std::vector<std::string>> cases[] = {
        {0, 2, {"33:0", "35:1", "32:2", "36:3"}},
        {3, 1, {"32:0", "36:1", "33:2", "35:3"}},
        {1, 1, {"32:0", "33:1", "35:2", "36:3"}},
        {1, 9, {"32:0", "35:1", "36:2", "33:3"}},
    };
    for (const auto& [from, to, expected] : cases) {
        exec("DELETE FROM tSelectedStates");
        exec("INSERT INTO tSelectedStates VALUES(32, 1), (33, 2), (35, 5), (36, 9)");
        cities.updateDataSource();
        cities.move(from, to);
        EXPECT_EQ(orderings(), expected) << from << " to " << to;
        // The held list follows the move without a re-read.
        ASSERT_EQ(cities.count(), 4);
        for (int row = 0; row < 4; ++row)
            EXPECT_EQ(std::to_string(cities.stateIdAt(row)) + ":" + std::to_string(row),
                      expected[static_cast<std::size_t>(row)]);
    }
    EXPECT_EQ(cities.targetRow(-1), 0);
}

TEST_F(ChosenCitiesTest, TheSearchOpensByItselfOnlyOnTheFirstAppearanceWithoutCities)
{
    EXPECT_TRUE(cities.appear());
    EXPECT_FALSE(cities.canFinish() || cities.preferencesEnabled());
    EXPECT_FALSE(cities.appear()) << "not again after the search was left without a choice";

    ChosenCities withCity(db, [] {});
    choose({32});
    EXPECT_FALSE(withCity.appear());
    EXPECT_TRUE(withCity.canFinish() && withCity.preferencesEnabled());
    withCity.remove(0);
    EXPECT_FALSE(withCity.canFinish());
    EXPECT_FALSE(withCity.appear()) << "emptied later, the list never opens the search itself";
}

TEST_F(ChosenCitiesTest, DoneRebuildsTheRemindersBeforeClosing)
{
    cities.Done(this);
    cities.Done(this);
    EXPECT_EQ(rebuildsAtClose, (std::vector<int>{1, 2}));
}

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
        search.textDidChange(typed);
        std::sort(expected.begin(), expected.end());
        EXPECT_EQ(names(search, true), expected) << typed;
    }
    provinces.textDidChange("");
    EXPECT_EQ(names(provinces, true), (std::vector<std::string>{"اصفهان", "تهران", "کرمان", "یزد"}))
        << "provinces whether or not one of their cities is chosen";
    provinces.textDidChange("\u06A9\u0631\u0645\u0627\u0646");
    EXPECT_EQ(names(provinces, true), (std::vector<std::string>{"کرمان"}));
}

TEST_F(CitySearchTest, AChoiceComesAfterEveryCityAndLeavesTheCandidates)
{
    search.textDidChange("یزد");
    search.pick(0, *this);
    EXPECT_EQ(orderings(), (std::vector<std::string>{"36:1"}));
    EXPECT_EQ(calls, (std::vector<std::string>{"closeForm"}));
    search.textDidChange("یزد");
    EXPECT_EQ(search.count(), 0) << "a chosen city is no candidate any more";

    // After a move renumbered the list, the next choice still comes last.
    exec("INSERT INTO tSelectedStates VALUES(32, 4), (35, 9)");
    ChosenCities list(db, [] {});
    list.updateDataSource();
    list.move(2, 0);
    search.addState(33);
    EXPECT_EQ(orderings(), (std::vector<std::string>{"35:0", "36:1", "32:2", "33:4"}));
}

TEST_F(CitySearchTest, ProvinceModeHandsTheProvinceBackAndAddsNothing)
{
    provinces.textDidChange("اصف");
    ASSERT_EQ(provinces.count(), 1);
    provinces.pick(0, *this);
    EXPECT_EQ(calls, (std::vector<std::string>{"setProvince 2 اصفهان", "closeForm"}));
    EXPECT_TRUE(orderings().empty());
}

// Every screen that writes: a write the database refuses is told (false), changes nothing
// stored, and keeps what the screen holds, so that the same action goes through once the
// database takes writes again.
TEST_F(FailedWritesTest, SettingsSoundAndOccasionsKeepTheirValuesUntilSaved)
{
    ReminderSettings settings(db);
    settings.load();
    settings.valueChanged(0, false, 1);
    SoundChoice sound(db, paths, nullptr);
    sound.load();
    sound.didSelectRow(7);
    OccasionTime occasions(db, nullptr);
    occasions.load();
    occasions.valueChanged(true);
    occasions.pickerValueChanged(9, 30);

    // clang-format off
    const struct {
        const char* screen;
        std::function<bool()> save;
        std::function<bool()> saveEnabled;
        std::function<bool()> holds;
        int item;
    } cases[] = {
        {"settings",  [&] { return settings.save(); },  [&] { return settings.saveEnabled(); },
                      [&] { return !settings.isOn(0); },                  0},
        {"sound",     [&] { return sound.save(); },     [&] { return sound.saveEnabled(); },
                      [&] { return sound.selectedPath() == 7; },          6},
        {"occasions", [&] { return occasions.save(); }, [&] { return occasions.saveEnabled(); },
                      [&] { return occasions.currentDate() == "09:30"; }, 7},
    };
    // clang-format on
    for (const auto& c : cases) {
        const std::string before = setting(c.item);
        refuse("tSetting", "UPDATE");
        EXPECT_FALSE(c.save()) << c.screen;
        EXPECT_EQ(setting(c.item), before) << c.screen;
        EXPECT_TRUE(c.saveEnabled()) << c.screen << ": Save stays, to try again";
        EXPECT_TRUE(c.holds()) << c.screen;
        allow();
        EXPECT_TRUE(c.save()) << c.screen;
        EXPECT_FALSE(c.saveEnabled()) << c.screen;
        EXPECT_NE(setting(c.item), before) << c.screen;
    }
}

TEST_F(FailedWritesTest, ARemovedCityOfOurOwnGoesWholeOrStays)
{
    choose({32, 63});
    cities.updateDataSource();
    const auto everything = [this] {
        return rowsText({"SELECT * FROM tSelectedStates ORDER BY StateID", "SELECT * FROM tStates",
                         "SELECT * FROM tTimes WHERE StateID = 63"});
    };
    const std::string before = everything();
    refuse("tTimes", "DELETE");
    EXPECT_FALSE(cities.remove(1));
    EXPECT_EQ(everything(), before) << "the choice and the place come back with the offsets";
    EXPECT_EQ(cities.count(), 2);
    allow();
    EXPECT_TRUE(cities.remove(1));
    EXPECT_EQ(count("SELECT COUNT(*) FROM tStates WHERE StateID = 63"), 0);
}

}  // namespace
}  // namespace kavenda
