// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "screens/cities/NewCityDraft.h"

#include "screens/cities/CitySearch.h"
#include "tests/unit/screens/cities/CitiesFixture.h"

#include <chrono>
#include <csignal>
#include <functional>
#include <iostream>
#include <limits>
#include <random>
#include <thread>

#include <sys/wait.h>
#include <unistd.h>

namespace kavenda {
namespace {

constexpr int fars = 8;

class NewCityDraftTest : public test::CitiesFixture {
protected:
    NewCityDraftTest() { exec("INSERT INTO tStates(StateID, Name, ParentID, IsCenter) VALUES (8, 'فارس', NULL, 0)"); }

    NewCityDraft jahrom(int province = fars, const char* name = "جهرم")
    {
        NewCityDraft draft(db);
        draft.commitName(name);
        draft.setProvince(province, province == fars ? "فارس" : "تهران");
        return draft;
    }
};

TEST_F(NewCityDraftTest, SaveFollowsTheCommittedNameAndTheProvince)
{
    // clang-format off
    const std::tuple<const char*, std::function<void(NewCityDraft&)>, bool> cases[] = {
        {"opening", [](NewCityDraft&) {}, false},
        {"a name alone", [](NewCityDraft& d) { d.commitName("جهرم"); }, false},
        {"a name, then a province", [](NewCityDraft& d) { d.commitName("جهرم"); d.setProvince(fars, "فارس"); }, true},
        {"a province, then a name", [](NewCityDraft& d) { d.setProvince(fars, "فارس"); d.commitName("جهرم"); }, true},
        {"a name of blanks", [](NewCityDraft& d) { d.setProvince(fars, "فارس"); d.commitName("   "); }, true},
        {"the name emptied again", [](NewCityDraft& d) {
             d.setProvince(fars, "فارس"); d.commitName("جهرم"); d.commitName(""); }, false},
    };
    // clang-format on
    for (const auto& [what, steps, enabled] : cases) {
        NewCityDraft fresh(db);
        steps(fresh);
        EXPECT_EQ(fresh.validate(), enabled) << what;
    }
}

TEST_F(NewCityDraftTest, SliderPositionsAreFlooredToWholeMinutes)
{
    // clang-format off
    const std::pair<double, int> cases[] = {
        {0.0, 0},   {-0.2, -1},   {-0.001, -1}, {0.999, 0}, {9.999, 9}, {10.0, 10},
        {-10.0, -10}, {-9.5, -10}, {-10.4, -10}, {12.0, 10}, {std::numeric_limits<double>::quiet_NaN(), 0},
    };
    // clang-format on
    for (const auto& [position, minutes] : cases)
        EXPECT_EQ(NewCityDraft::offsetAt(position), minutes) << position;
    NewCityDraft draft(db);
    EXPECT_EQ(draft.setOffset(4, -1.5), -2);
    EXPECT_EQ(draft.setOffset(6, 3.0), 0) << "there are six times only";
    EXPECT_EQ(draft.difArray(), (std::array<int, 6>{0, 0, 0, 0, -2, 0}));
}

TEST_F(NewCityDraftTest, SaveWritesThePlaceItsFlooredOffsetsAndItsTurnAfterTheList)
{
    choose({32, 35, 63});
    NewCityDraft draft = jahrom();
    int index = 0;
    for (double position : {0.3, 1.0, 0.0, 0.9, -1.2, 5.5})
        draft.setOffset(index++, position);
    ASSERT_TRUE(draft.save());
    // The fixture's places end at 63, so the database numbers the new one 64.
    EXPECT_EQ(scalar("SELECT Name || ' ' || ParentID || ' ' || IsCenter FROM tStates WHERE StateID = 64"), "جهرم 8 0");
    EXPECT_EQ(
        scalar("SELECT Date || ' ' || T1 || T2 || T3 || T4 || ' ' || T5 || ' ' || T6 FROM tTimes WHERE StateID = 64"),
        "14000101 0100 -2 5");
    EXPECT_EQ(orderings(), (std::vector<std::string>{"32:0", "35:1", "63:2", "64:4"}));
    EXPECT_EQ(scalar("SELECT typeof(Date) || typeof(T1) || typeof(T5) FROM tTimes WHERE StateID = 64"),
              "integerintegerinteger")
        << "the readers compare and add these as numbers";
}

TEST_F(NewCityDraftTest, NamesAreStoredWithPersianLettersAndQuotesAsTypedAndFoundAgain)
{
    const std::tuple<const char*, const char*, const char*> cases[] = {
        {"كوي علي", "کوی علی", "\u0643\u0648\u064A"},  // Arabic kaf and yeh, typed and searched
        {"Shah's Town", "Shah's Town", "h's t"},  // the quote is part of the name
    };
    for (const auto& [typed, stored, searched] : cases) {
        ASSERT_TRUE(jahrom(1, typed).save()) << typed;
        const std::string id = scalar("SELECT MAX(StateID) FROM tStates");
        EXPECT_EQ(scalar("SELECT Name FROM tStates WHERE StateID = " + id), stored);
        // A city the user made and then took off the list only to find it again.
        exec("DELETE FROM tSelectedStates WHERE StateID = " + id);
        CitySearch search(db);
        search.textDidChange(searched);
        ASSERT_EQ(search.count(), 1) << searched;
        EXPECT_EQ(search.nameAt(0), std::string(stored) + " (تهران)");
    }
}

TEST_F(NewCityDraftTest, AFailedWriteTakesBackWhatWasWrittenAndAttachesNothingElsewhere)
{
    // clang-format off
    const std::pair<const char*, const char*> cases[] = {
        {"the place refused", "CREATE TRIGGER fault BEFORE INSERT ON tStates BEGIN SELECT RAISE(ABORT, 'full'); END"},
        {"the choice refused",
         "CREATE TRIGGER fault BEFORE INSERT ON tSelectedStates BEGIN SELECT RAISE(ABORT, 'full'); END"},
        {"an offset row left over under the new identifier", "INSERT INTO tTimes VALUES(64, 14000101, 9, 9, 9, 9, 9, 9)"},
        {"a choice left over under the new identifier", "INSERT INTO tSelectedStates VALUES(64, 7)"},
    };
    // clang-format on
    choose({32});
    const auto everyRow = [this] {
        return rowsText({"SELECT StateID, Name, ParentID, IsCenter FROM tStates ORDER BY StateID",
                         "SELECT * FROM tTimes WHERE Date = 14000101", "SELECT * FROM tSelectedStates"});
    };
    for (const auto& [what, fault] : cases) {
        exec(fault);
        const std::string before = everyRow();
        NewCityDraft draft = jahrom();
        draft.setOffset(0, -3);
        EXPECT_FALSE(draft.save()) << what;
        EXPECT_EQ(everyRow(), before) << what;
        exec("DROP TRIGGER IF EXISTS fault");
        exec("DELETE FROM tTimes WHERE StateID = 64");
        exec("DELETE FROM tSelectedStates WHERE StateID = 64");
    }
    // The database is whole again: the same draft now goes through.
    EXPECT_TRUE(jahrom().save());
    EXPECT_EQ(orderings(), (std::vector<std::string>{"32:0", "64:2"}));
}

// A process killed (kill -9) while it saves new cities leaves each of them whole or absent: a
// place with its offset row and its place in the list, never a part of them.
using KilledSaveTest = NewCityDraftTest;

TEST_F(KilledSaveTest, ACityIsSavedWholeOrNotAtAll)
{
    constexpr int tries = 40;
    std::mt19937 random(20261124);
    std::uniform_int_distribution<int> delay(1, 40);
    int killedMidway = 0;
    for (int attempt = 0; attempt < tries; ++attempt) {
        const pid_t child = ::fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            MyDB own("Icons", paths, log);
            for (;;) {
                NewCityDraft draft(own);
                draft.commitName("جهرم");
                draft.setProvince(1, "تهران");
                draft.setOffset(0, -3);
                draft.save();
            }
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(delay(random)));
        ::kill(child, SIGKILL);
        int status = 0;
        ::waitpid(child, &status, 0);
        killedMidway += WIFSIGNALED(status) ? 1 : 0;
        // Parts of cities made here (identifiers above the fixture's) that lack another part.
        ASSERT_EQ(count("SELECT COUNT(*) FROM tStates s WHERE s.StateID > 63 AND ("
                        "(SELECT COUNT(*) FROM tTimes t WHERE t.StateID = s.StateID) != 1 OR "
                        "(SELECT COUNT(*) FROM tSelectedStates c WHERE c.StateID = s.StateID) != 1)")
                      + count("SELECT COUNT(*) FROM tTimes WHERE StateID > 63 AND StateID NOT IN "
                              "(SELECT StateID FROM tStates)")
                      + count("SELECT COUNT(*) FROM tSelectedStates WHERE StateID > 63 AND StateID NOT IN "
                              "(SELECT StateID FROM tStates)"),
                  0)
            << "after kill " << attempt + 1;
    }
    const int whole = count("SELECT COUNT(*) FROM tStates WHERE StateID > 63");
    std::cout << "killed during save: " << killedMidway << " of " << tries << " tries, " << whole << " whole cities\n";
    EXPECT_EQ(killedMidway, tries);
    EXPECT_GT(whole, 0) << "the saves ran";
}

}  // namespace
}  // namespace kavenda
