// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "screens/preferences/SoundChoice.h"

#include "reminders/SoundFiles.h"
#include "tests/support/FileText.h"
#include "tests/support/FixtureDatabase.h"
#include "tests/support/RecordingAudioPlayer.h"

#include <fstream>
#include <optional>

namespace kavenda {
namespace {

using Calls = std::vector<std::string>;
namespace fs = std::filesystem;

void write(const fs::path& file, const std::string& text)
{
    std::ofstream(file, std::ios::binary) << text;
}

class SoundChoiceTest : public test::WorkingCopy {
protected:
    SoundChoiceTest()
    {
        for (int row = 0; row < SoundChoice::rowCount; ++row)
            if (row != SoundChoice::randomRow)
                write(paths.resourceFolder() / SoundChoice::fileName(row), "shipped");
    }

    std::string resourceFile(int row) const { return (paths.resourceFolder() / SoundChoice::fileName(row)).string(); }

    // Loads and builds every row, as the screen shows them.
    void show(const std::string& item6)
    {
        setSettings("Item6 = " + item6);
        choice.load();
        for (int row = 0; row < SoundChoice::rowCount; ++row)
            choice.cellForRow(row);
        audio.calls.clear();
    }

    // What the player was asked on a tap of the row.
    Calls tap(int row)
    {
        audio.calls.clear();
        choice.didSelectRow(row);
        return audio.calls;
    }

    test::RecordingAudioPlayer audio;
    SoundChoice choice{db, paths, &audio};
};

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

TEST_F(SoundChoiceTest, ATapPreviewsTheRowAndEnablesSaveWhenItDiffersFromTheStoredOne)
{
    show("9");
    EXPECT_EQ(tap(9), (Calls{"open " + resourceFile(9)})) << "the random row plays nothing";
    EXPECT_FALSE(choice.saveEnabled());
    EXPECT_EQ(tap(7), (Calls{"open " + resourceFile(7), "play"}));
    EXPECT_EQ(choice.selectedPath(), 7);
    EXPECT_TRUE(choice.saveEnabled());
    EXPECT_EQ(tap(8), (Calls{"stop", "open " + resourceFile(8), "play"})) << "the first preview stops first";
    EXPECT_EQ(tap(9), (Calls{"stop", "open " + resourceFile(9)}));
    EXPECT_FALSE(choice.saveEnabled()) << "back on the stored row";
}

TEST_F(SoundChoiceTest, SaveStoresTheCheckedRowAndStopsOnlyAStartedPreview)
{
    show("0");
    choice.stopPreview();
    EXPECT_TRUE(audio.calls.empty());
    tap(7);
    audio.calls.clear();
    choice.save();
    EXPECT_EQ(setting(6), "7");
    EXPECT_EQ(choice.selected(), 7);
    EXPECT_FALSE(choice.saveEnabled());
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

TEST_F(SoundChoiceTest, AnOwnRecordingIsCopiedUnderTheRowsNameAndPreferredFromThenOn)
{
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

TEST_F(SoundChoiceTest, AnUnplayableFileOrTheRandomRowCopiesNothing)
{
    const auto source = temp.path() / "notes.txt";
    write(source, "not a sound");
    int checks = 0;
    const auto refuse = [&checks](const fs::path&) { return ++checks == 0; };
    EXPECT_EQ(choice.useOwnRecording(3, source, refuse), SoundChoice::OwnRecording::notPlayable);
    EXPECT_EQ(choice.useOwnRecording(SoundChoice::randomRow, source, refuse), SoundChoice::OwnRecording::notCopied);
    EXPECT_EQ(choice.useOwnRecording(11, source, refuse), SoundChoice::OwnRecording::notCopied);
    EXPECT_EQ(checks, 1);
    EXPECT_FALSE(fs::exists(paths.documentsFolder() / "sounds"));
}

}  // namespace
}  // namespace kavenda
