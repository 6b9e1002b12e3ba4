// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "screens/preferences/AboutRows.h"
#include "screens/preferences/OccasionTime.h"
#include "screens/preferences/ReminderSettings.h"
#include "screens/preferences/SoundChoice.h"

#include "reminders/SoundFiles.h"
#include "tests/support/FileText.h"
#include "tests/support/FixtureDatabase.h"
#include "tests/support/RecordingAudioPlayer.h"
#include "tests/support/RecordingUrlOpener.h"

#include <array>
#include <fstream>
#include <functional>
#include <optional>
#include <tuple>

namespace kavenda {
namespace {

using Flags = std::array<int, ReminderSettings::itemCount>;
using Change = ReminderSettings::RowChange;
using Calls = std::vector<std::string>;
namespace fs = std::filesystem;

void write(const fs::path& file, const std::string& text)
{
    std::ofstream(file, std::ios::binary) << text;
}

// The preference screens on one working copy, with a recording of every shipped sound. Public,
// for the edit steps of the tables below.
class ReminderSettingsTest : public test::WorkingCopy {
public:
    ReminderSettingsTest()
    {
        for (int row = 0; row < SoundChoice::rowCount; ++row)
            if (row != SoundChoice::randomRow)
                write(paths.resourceFolder() / SoundChoice::fileName(row), "shipped");
    }

    std::vector<std::string> storedItems()
    {
        std::vector<std::string> values;
        for (int item = 0; item < ReminderSettings::itemCount; ++item)
            values.push_back(setting(item));
        return values;
    }

    void loadOccasions(const std::string& item7)
    {
        setSettings("Item7 = '" + item7 + "'");
        occasions.load();
    }

    // Flips a switch as the screen does, with the rows its section showed before.
    Change flip(int item, bool on)
    {
        const int section = item < ReminderSettings::firstWarning ? 0 : item - 2;
        return settings.valueChanged(item, on, settings.rowCount(section));
    }

    std::string resourceFile(int row) const { return (paths.resourceFolder() / SoundChoice::fileName(row)).string(); }

    // Loads and builds every sound row, as the screen shows them.
    void show(const std::string& item6)
    {
        setSettings("Item6 = " + item6);
        choice.load();
        for (int row = 0; row < SoundChoice::rowCount; ++row)
            choice.cellForRow(row);
        audio.calls.clear();
    }

    // What the player was asked on a tap of the sound row.
    Calls tap(int row)
    {
        audio.calls.clear();
        choice.didSelectRow(row);
        return audio.calls;
    }

    ReminderSettings settings{db};
    OccasionTime occasions{db, &log};
    test::RecordingAudioPlayer audio;
    SoundChoice choice{db, paths, &audio};
};
using OccasionTimeTest = ReminderSettingsTest;
using SoundChoiceTest = ReminderSettingsTest;

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
        setSettings(c.row);
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
    // clang-format off
    const std::tuple<const char*, std::function<void(ReminderSettingsTest&)>, std::vector<std::string>> cases[] = {
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
    for (const auto& [name, edit, stored] : cases) {
        SCOPED_TRACE(name);
        setSettings("Item0 = 1, Item1 = 1, Item2 = 1, Item3 = 0, Item4 = 0, Item5 = 0");
        settings.load();
        edit(*this);
        EXPECT_TRUE(settings.saveEnabled());
        settings.save();
        EXPECT_EQ(storedItems(), stored);
        EXPECT_FALSE(settings.saveEnabled());
    }
}

TEST_F(ReminderSettingsTest, AfterSaveTheFlagsAreBackToOneAndAStoredOddLeadSurvives)
{
    setSettings("Item3 = 7, Item5 = 25");
    settings.load();
    flip(1, false);
    settings.save();
    EXPECT_EQ(settings.notifications(), (Flags{1, 0, 1, 1, 0, 1}));
    EXPECT_EQ(storedItems(), (std::vector<std::string>{"1", "0", "1", "7", "0", "25"}));
    flip(1, true);
    EXPECT_TRUE(settings.saveEnabled()) << "the next change enables Save again";
}

TEST_F(OccasionTimeTest, LoadsTheStoredTime)
{
    // Without ":" it is off, as the reminders read it.
    const std::tuple<const char*, bool, int, int> cases[] = {
        {"0", false, 8, 0}, {"21:05", true, 21, 5}, {"7:5", true, 7, 5}, {"830", false, 8, 0}, {"31:75", true, 23, 59}};
    for (const auto& [item7, on, hour, minute] : cases) {
        loadOccasions(item7);
        EXPECT_EQ(std::tuple(occasions.isOn(), occasions.hour(), occasions.minute(), occasions.saveEnabled()),
                  std::tuple(on, hour, minute, false))
            << item7;
    }
}

TEST_F(OccasionTimeTest, SavesTheTimeInTwoDigitsOrZeroForOff)
{
    // clang-format off
    const std::tuple<const char*, std::function<void(OccasionTime&)>, std::string> cases[] = {
        {"0", [](OccasionTime& o) { o.valueChanged(true); }, "08:00"},  // the picker untouched
        {"7:5", [](OccasionTime& o) { o.valueChanged(false); o.valueChanged(true); }, "07:05"},
        {"06:30", [](OccasionTime& o) { o.pickerValueChanged(6, 45); o.valueChanged(false); }, "0"},
    };
    // clang-format on
    for (const auto& [item7, edit, saved] : cases) {
        loadOccasions(item7);
        log.lines.clear();
        edit(occasions);
        EXPECT_TRUE(occasions.saveEnabled()) << item7;
        EXPECT_TRUE(occasions.save()) << item7;
        EXPECT_EQ(setting(7), saved) << item7;
        EXPECT_EQ(log.lines, std::vector<std::string>{saved});
        EXPECT_FALSE(occasions.saveEnabled()) << item7;
    }
    // Saved off, the picker's last time is offered again, compared with the "0" just saved.
    occasions.valueChanged(true);
    EXPECT_EQ(occasions.currentDate(), "06:45");
    EXPECT_TRUE(occasions.saveEnabled());
}

TEST_F(OccasionTimeTest, SaveIsEnabledExactlyWhileTheValueDiffersFromTheStoredOne)
{
    loadOccasions("21:05");
    occasions.pickerValueChanged(22, 10);
    EXPECT_TRUE(occasions.saveEnabled());
    occasions.pickerValueChanged(21, 5);
    EXPECT_FALSE(occasions.saveEnabled()) << "21:05 chosen again";
    occasions.valueChanged(false);
    EXPECT_TRUE(occasions.saveEnabled());
    occasions.valueChanged(true);
    EXPECT_FALSE(occasions.saveEnabled()) << "off and on again at the stored time";
}

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

TEST_F(SoundChoiceTest, TheStoredRowCarriesTheCheckmark)
{
    const std::pair<const char*, std::optional<int>> cases[] = {
        {"0", 0}, {"10", 10}, {"11", std::nullopt}, {"-1", std::nullopt}, {"'x'", 0}};
    for (const auto& [item6, checked] : cases) {
        show(item6);
        EXPECT_EQ(choice.selectedPath(), checked) << item6;
        EXPECT_FALSE(choice.saveEnabled()) << item6;
    }
}

// A tap previews the row and enables Save when it differs from the stored one; Save stores the
// checked row and stops only a started preview.
TEST_F(SoundChoiceTest, ATapPreviewsTheRowAndSaveStoresIt)
{
    show("9");
    choice.stopPreview();
    EXPECT_TRUE(audio.calls.empty());
    EXPECT_EQ(tap(9), (Calls{"open " + resourceFile(9)})) << "the random row plays nothing";
    EXPECT_FALSE(choice.saveEnabled());
    EXPECT_EQ(tap(7), (Calls{"open " + resourceFile(7), "play"}));
    EXPECT_EQ(choice.selectedPath(), 7);
    EXPECT_TRUE(choice.saveEnabled());
    EXPECT_EQ(tap(8), (Calls{"stop", "open " + resourceFile(8), "play"})) << "the first preview stops first";
    EXPECT_EQ(tap(9), (Calls{"stop", "open " + resourceFile(9)}));
    EXPECT_FALSE(choice.saveEnabled()) << "back on the stored row";

    tap(7);
    audio.calls.clear();
    choice.save();
    EXPECT_EQ(std::tuple(setting(6), choice.selected(), choice.saveEnabled()), std::tuple("7", 7, false));
    choice.stopPreview();
    EXPECT_EQ(audio.calls, (Calls{"stop"}));
    choice.didSelectRow(7);
    EXPECT_FALSE(choice.saveEnabled()) << "compared with the row just saved";

    // A missing recording plays nothing but can still be saved.
    fs::remove(resourceFile(4));
    EXPECT_EQ(tap(4), (Calls{"stop", "open " + resourceFile(4)}));
    choice.save();
    EXPECT_EQ(setting(6), "4");
    EXPECT_EQ(audio.calls.back(), "open " + resourceFile(4)) << "no player, nothing to stop";
}

// An unplayable file, the random row or no row copies nothing; a playable one is copied under the
// row's name and preferred from then on.
TEST_F(SoundChoiceTest, AnOwnRecordingIsCopiedUnderTheRowsNameAndPreferredFromThenOn)
{
    const auto notes = temp.path() / "notes.txt";
    write(notes, "not a sound");
    int checks = 0;
    const auto refuse = [&checks](const fs::path&) { return ++checks == 0; };
    EXPECT_EQ(choice.useOwnRecording(3, notes, refuse), SoundChoice::OwnRecording::notPlayable);
    EXPECT_EQ(choice.useOwnRecording(SoundChoice::randomRow, notes, refuse), SoundChoice::OwnRecording::notCopied);
    EXPECT_EQ(choice.useOwnRecording(11, notes, refuse), SoundChoice::OwnRecording::notCopied);
    EXPECT_EQ(checks, 1);
    EXPECT_FALSE(fs::exists(paths.documentsFolder() / "sounds"));

    const auto source = temp.path() / "my call.ogg";
    write(source, "mine");
    std::vector<fs::path> checked;
    const auto playable = [&checked](const fs::path& file) {
        checked.push_back(file);
        return true;
    };
    EXPECT_EQ(choice.useOwnRecording(7, source, playable), SoundChoice::OwnRecording::copied);
    EXPECT_EQ(checked, (std::vector<fs::path>{source}));
    const auto own = paths.documentsFolder() / "sounds" / "7.wav";
    EXPECT_EQ(test::fileText(own), "mine");
    EXPECT_EQ(soundFile(paths, "7.wav"), own);
    EXPECT_EQ(soundFile(paths, "8.wav"), paths.resourceFolder() / "8.wav");

    show("0");
    EXPECT_EQ(tap(7), (Calls{"open " + own.string(), "play"}));

    write(source, "newer");
    EXPECT_EQ(choice.useOwnRecording(7, source, playable), SoundChoice::OwnRecording::copied);
    EXPECT_EQ(test::fileText(own), "newer") << "a second choice replaces the first";
    EXPECT_FALSE(fs::exists(own.string() + ".part"));

    // A copy that fails keeps the recording that worked.
    EXPECT_EQ(choice.useOwnRecording(7, temp.path() / "gone.wav", playable), SoundChoice::OwnRecording::notCopied);
    EXPECT_EQ(test::fileText(own), "newer");
    EXPECT_FALSE(fs::exists(own.string() + ".part"));
}

}  // namespace
}  // namespace kavenda
