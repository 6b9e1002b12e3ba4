// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "screens/preferences/ReminderSettings.h"

#include "tests/support/FixtureDatabase.h"

#include <array>
#include <functional>

namespace kavenda {
namespace {

using Flags = std::array<int, ReminderSettings::itemCount>;
using Change = ReminderSettings::RowChange;

// Public, for the edit steps of the table below.
class ReminderSettingsTest : public test::WorkingCopy {
public:
    std::vector<std::string> storedItems()
    {
        std::vector<std::string> values;
        for (int item = 0; item < ReminderSettings::itemCount; ++item)
            values.push_back(scalar("SELECT Item" + std::to_string(item) + " FROM tSetting"));
        return values;
    }

    // Flips a switch as the screen does, with the rows its section showed before.
    Change flip(int item, bool on)
    {
        const int section = item < ReminderSettings::firstWarning ? 0 : item - 2;
        return settings.valueChanged(item, on, settings.rowCount(section));
    }

    ReminderSettings settings{db};
};

TEST_F(ReminderSettingsTest, LoadsTheStoredRow)
{
    struct Case {
        const char* row;
        Flags flags;
        std::array<int, 3> leads;
        std::array<int, 4> rowCounts;
        std::array<int, 3> positions;
        std::array<const char*, 3> leadTexts;
    };
    // clang-format off
    const std::vector<Case> cases = {
        {"Item0 = 0, Item1 = 1, Item2 = 0, Item3 = 15, Item4 = 0, Item5 = 0",
         {0, 1, 0, 1, 0, 0}, {15, 5, 5}, {3, 2, 1, 1}, {2, 0, 0}, {"١٥", "٥", "٥"}},
        // A lead that is no multiple of 5 keeps its own number; the slider sits at 7 / 5 - 1.
        {"Item0 = 1, Item1 = 0, Item2 = 1, Item3 = 0, Item4 = 60, Item5 = 7",
         {1, 0, 1, 0, 1, 1}, {5, 60, 7}, {3, 1, 2, 2}, {0, 11, 0}, {"٥", "٦٠", "٧"}},
        // Text that is no number reads as off.
        {"Item0 = 'x', Item1 = '', Item2 = '2abc', Item3 = 'abc', Item4 = '-', Item5 = '45 '",
         {0, 0, 1, 0, 0, 1}, {5, 5, 45}, {3, 1, 1, 2}, {0, 0, 8}, {"٥", "٥", "٤٥"}},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.row);
        exec(std::string("UPDATE tSetting SET ") + c.row);
        settings.load();
        EXPECT_EQ(settings.notifications(), c.flags);
        for (int index = 0; index < 3; ++index) {
            EXPECT_EQ(settings.lead(index), c.leads[index]) << index;
            EXPECT_EQ(settings.sliderPosition(index), c.positions[index]) << index;
            EXPECT_EQ(settings.leadText(index), c.leadTexts[index]) << index;
        }
        for (int section = 0; section < ReminderSettings::sectionCount; ++section)
            EXPECT_EQ(settings.rowCount(section), c.rowCounts[section]) << section;
        EXPECT_FALSE(settings.saveEnabled());
    }
}

TEST_F(ReminderSettingsTest, SwitchesInsertAndRemoveTheirSliderRowOnlyForWarnings)
{
    settings.load();
    EXPECT_EQ(settings.valueChanged(5, true, 1), Change::insertSlider);
    EXPECT_EQ(settings.rowCount(3), 2);
    EXPECT_EQ(settings.valueChanged(5, true, 2), Change::none) << "the row is there already";
    EXPECT_EQ(settings.valueChanged(5, false, 2), Change::removeSlider);
    EXPECT_EQ(settings.rowCount(3), 1);
    EXPECT_EQ(settings.valueChanged(5, false, 1), Change::none);
    EXPECT_EQ(settings.valueChanged(0, false, 3), Change::none);
}

TEST_F(ReminderSettingsTest, SavesWhatTheScreenHolds)
{
    struct Case {
        const char* name;
        std::function<void(ReminderSettingsTest&)> edit;
        std::vector<std::string> stored;
    };
    // clang-format off
    const std::vector<Case> cases = {
        {"dawn on, noon off, evening on, sunrise 10, suhur off, iftar 30", [](ReminderSettingsTest& t) {
             t.flip(1, false); t.flip(3, true); t.settings.sliderChanged(0, 1); t.flip(5, true);
             t.settings.sliderChanged(2, 5); }, {"1", "0", "1", "10", "0", "30"}},
        {"the slider's far end and far start", [](ReminderSettingsTest& t) {
             t.flip(3, true); t.settings.sliderChanged(0, 11); t.flip(4, true); t.settings.sliderChanged(1, 11);
             t.settings.sliderChanged(1, 0); }, {"1", "1", "1", "60", "5", "0"}},
        {"a lead moved while its warning is off is stored only once it is on again", [](ReminderSettingsTest& t) {
             t.flip(4, true); t.settings.sliderChanged(1, 3); t.flip(4, false); t.settings.sliderChanged(2, 8); },
         {"1", "1", "1", "0", "0", "0"}},
        {"switched off and on again keeps the moved lead", [](ReminderSettingsTest& t) {
             t.flip(4, true); t.settings.sliderChanged(1, 3); t.flip(4, false); t.flip(4, true); },
         {"1", "1", "1", "0", "20", "0"}},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        exec("UPDATE tSetting SET Item0 = 1, Item1 = 1, Item2 = 1, Item3 = 0, Item4 = 0, Item5 = 0");
        settings.load();
        c.edit(*this);
        EXPECT_TRUE(settings.saveEnabled());
        settings.save();
        EXPECT_EQ(storedItems(), c.stored);
        EXPECT_FALSE(settings.saveEnabled());
    }
}

TEST_F(ReminderSettingsTest, AfterSaveTheFlagsAreBackToOneAndAStoredOddLeadSurvives)
{
    exec("UPDATE tSetting SET Item3 = 7, Item5 = 25");
    settings.load();
    flip(1, false);
    settings.save();
    EXPECT_EQ(settings.notifications(), (Flags{1, 0, 1, 1, 0, 1}));
    EXPECT_EQ(storedItems(), (std::vector<std::string>{"1", "0", "1", "7", "0", "25"}));
    flip(1, true);
    EXPECT_TRUE(settings.saveEnabled()) << "the next change enables Save again";
}

}  // namespace
}  // namespace kavenda
