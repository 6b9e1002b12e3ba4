// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "screens/cities/ChosenCities.h"
#include "screens/preferences/OccasionTime.h"
#include "screens/preferences/ReminderSettings.h"
#include "screens/preferences/SoundChoice.h"
#include "tests/unit/screens/cities/CitiesFixture.h"

#include <functional>

namespace kavenda {
namespace {

// Every screen that writes: a write the database refuses is told (false), changes nothing
// stored, and keeps what the screen holds, so that the same action goes through once the
// database takes writes again.
class FailedWritesTest : public test::CitiesFixture {
protected:
    void refuse(const std::string& table, const std::string& action)
    {
        exec("CREATE TRIGGER refuse BEFORE " + action + " ON " + table + " BEGIN SELECT RAISE(ABORT, 'full'); END");
    }
    void allow() { exec("DROP TRIGGER refuse"); }
};

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
    ChosenCities cities(db, [] {});
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
