// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "screens/preferences/OccasionTime.h"

#include "tests/unit/screens/preferences/PreferencesFixture.h"

#include <gtest/gtest.h>

#include <vector>

namespace kavenda {
namespace {

class OccasionTimeTest : public test::PreferencesFixture {
protected:
    void loadWith(const std::string& item7)
    {
        store("Item7 = '" + item7 + "'");
        occasions.load();
    }

    OccasionTime occasions{db, &log};
};

TEST_F(OccasionTimeTest, LoadsTheStoredTime)
{
    struct Case {
        const char* item7;
        bool on;
        int hour, minute;
    };
    const std::vector<Case> cases = {
        {"0", false, 8, 0},
        {"21:05", true, 21, 5},
        {"7:5", true, 7, 5},
        {"00:00", true, 0, 0},
        // Without ":" it is off, as the reminders read it.
        {"830", false, 8, 0},
        {"", false, 8, 0},
        {"31:75", true, 23, 59},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.item7);
        loadWith(c.item7);
        EXPECT_EQ(occasions.isOn(), c.on);
        EXPECT_EQ(occasions.hour(), c.hour);
        EXPECT_EQ(occasions.minute(), c.minute);
        EXPECT_FALSE(occasions.saveEnabled());
    }
}

TEST_F(OccasionTimeTest, TurningOnWithoutTouchingThePickerStoresEightOClock)
{
    loadWith("0");
    occasions.valueChanged(true);
    EXPECT_EQ(occasions.currentDate(), "08:00");
    EXPECT_TRUE(occasions.saveEnabled());
    occasions.save();
    EXPECT_EQ(stored("Item7"), "08:00");
    EXPECT_EQ(log.lines, (std::vector<std::string>{"08:00"}));
    EXPECT_FALSE(occasions.saveEnabled());
}

TEST_F(OccasionTimeTest, SaveIsEnabledExactlyWhileTheValueDiffersFromTheStoredOne)
{
    loadWith("21:05");
    occasions.pickerValueChanged(22, 10);
    EXPECT_TRUE(occasions.saveEnabled());
    occasions.pickerValueChanged(21, 5);
    EXPECT_FALSE(occasions.saveEnabled()) << "21:05 chosen again";
    occasions.valueChanged(false);
    EXPECT_TRUE(occasions.saveEnabled());
    occasions.valueChanged(true);
    EXPECT_FALSE(occasions.saveEnabled()) << "off and on again at the stored time";
}

TEST_F(OccasionTimeTest, SavingOffStoresZeroAndKeepsThePickersTime)
{
    loadWith("06:30");
    occasions.pickerValueChanged(6, 45);
    occasions.valueChanged(false);
    occasions.save();
    EXPECT_EQ(stored("Item7"), "0");
    EXPECT_EQ(log.lines, (std::vector<std::string>{"0"}));
    occasions.valueChanged(true);
    EXPECT_EQ(occasions.currentDate(), "06:45") << "the last time is offered again";
    EXPECT_TRUE(occasions.saveEnabled()) << "compared with the \"0\" just saved";
    occasions.save();
    EXPECT_EQ(stored("Item7"), "06:45");
}

TEST_F(OccasionTimeTest, AnUnpaddedStoredTimeIsRewrittenInTwoDigits)
{
    loadWith("7:5");
    occasions.valueChanged(false);
    occasions.valueChanged(true);
    EXPECT_EQ(occasions.currentDate(), "07:05");
    EXPECT_TRUE(occasions.saveEnabled());
    occasions.save();
    EXPECT_EQ(stored("Item7"), "07:05");
}

}  // namespace
}  // namespace kavenda
