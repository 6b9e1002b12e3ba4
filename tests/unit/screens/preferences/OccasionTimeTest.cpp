// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "screens/preferences/OccasionTime.h"

#include "tests/support/FixtureDatabase.h"

#include <functional>

namespace kavenda {
namespace {

class OccasionTimeTest : public test::WorkingCopy {
protected:
    void loadWith(const std::string& item7)
    {
        exec("UPDATE tSetting SET Item7 = '" + item7 + "'");
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
    // Without ":" it is off, as the reminders read it.
    for (const Case& c : {Case{"0", false, 8, 0}, Case{"21:05", true, 21, 5}, Case{"7:5", true, 7, 5},
                          Case{"830", false, 8, 0}, Case{"31:75", true, 23, 59}}) {
        loadWith(c.item7);
        EXPECT_EQ(occasions.isOn(), c.on) << c.item7;
        EXPECT_EQ(occasions.hour(), c.hour) << c.item7;
        EXPECT_EQ(occasions.minute(), c.minute) << c.item7;
        EXPECT_FALSE(occasions.saveEnabled()) << c.item7;
    }
}

TEST_F(OccasionTimeTest, SavesTheTimeInTwoDigitsOrZeroForOff)
{
    struct Case {
        const char* item7;
        std::function<void(OccasionTime&)> edit;
        const char* saved;
    };
    const Case cases[] = {
        {"0", [](OccasionTime& o) { o.valueChanged(true); }, "08:00"},  // the picker untouched
        {"7:5", [](OccasionTime& o) { o.valueChanged(false); o.valueChanged(true); }, "07:05"},
        {"06:30", [](OccasionTime& o) { o.pickerValueChanged(6, 45); o.valueChanged(false); }, "0"},
    };
    for (const Case& c : cases) {
        loadWith(c.item7);
        log.lines.clear();
        c.edit(occasions);
        EXPECT_TRUE(occasions.saveEnabled()) << c.item7;
        EXPECT_TRUE(occasions.save()) << c.item7;
        EXPECT_EQ(scalar("SELECT Item7 FROM tSetting"), c.saved) << c.item7;
        EXPECT_EQ(log.lines, std::vector<std::string>{c.saved});
        EXPECT_FALSE(occasions.saveEnabled()) << c.item7;
    }
    // Saved off, the picker's last time is offered again, compared with the "0" just saved.
    occasions.valueChanged(true);
    EXPECT_EQ(occasions.currentDate(), "06:45");
    EXPECT_TRUE(occasions.saveEnabled());
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

}  // namespace
}  // namespace kavenda
