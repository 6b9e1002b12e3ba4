// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "screens/preferences/SoundChoice.h"

#include "reminders/SoundFiles.h"
#include "tests/support/FileText.h"
#include "tests/support/RecordingAudioPlayer.h"
#include "tests/unit/screens/preferences/PreferencesFixture.h"

#include <gtest/gtest.h>

#include <fstream>
#include <optional>
#include <vector>

namespace kavenda {
namespace {

using Calls = std::vector<std::string>;

class SoundChoiceTest : public test::PreferencesFixture {
protected:
    SoundChoiceTest()
    {
        for (int row = 0; row < SoundChoice::rowCount; ++row)
            if (row != SoundChoice::randomRow)
                test::writeFileText(paths.resourceFolder() / SoundChoice::fileName(row), "shipped");
    }

    std::string resourceFile(int row) const { return (paths.resourceFolder() / SoundChoice::fileName(row)).string(); }

    // Loads and builds every row, as the screen shows them.
    void show(const std::string& item6)
    {
        store("Item6 = " + item6);
        choice.load();
        for (int row = 0; row < SoundChoice::rowCount; ++row)
            choice.cellForRow(row);
        audio.calls.clear();
    }

    test::RecordingAudioPlayer audio;
    SoundChoice choice{db, paths, &audio};
};

TEST_F(SoundChoiceTest, TheStoredRowCarriesTheCheckmark)
{
    struct Case {
        const char* item6;
        std::optional<int> checked;
    };
    for (const Case& c : {Case{"0", 0}, Case{"9", 9}, Case{"10", 10}, Case{"11", std::nullopt},
                          Case{"-1", std::nullopt}, Case{"'x'", 0}}) {
        SCOPED_TRACE(c.item6);
        show(c.item6);
        EXPECT_EQ(choice.selectedPath(), c.checked);
        EXPECT_FALSE(choice.saveEnabled());
    }
}

TEST_F(SoundChoiceTest, ATapPreviewsTheRowAndEnablesSaveWhenItDiffersFromTheStoredOne)
{
    show("9");
    choice.didSelectRow(9);
    EXPECT_EQ(audio.calls, (Calls{"open " + resourceFile(9)})) << "the random row plays nothing";
    EXPECT_FALSE(choice.saveEnabled());

    audio.calls.clear();
    choice.didSelectRow(7);
    EXPECT_EQ(audio.calls, (Calls{"open " + resourceFile(7), "play"}));
    EXPECT_EQ(choice.selectedPath(), 7);
    EXPECT_TRUE(choice.saveEnabled());

    audio.calls.clear();
    choice.didSelectRow(8);
    EXPECT_EQ(audio.calls, (Calls{"stop", "open " + resourceFile(8), "play"})) << "the first preview stops first";

    audio.calls.clear();
    choice.didSelectRow(9);
    EXPECT_EQ(audio.calls, (Calls{"stop", "open " + resourceFile(9)}));
    EXPECT_FALSE(choice.saveEnabled()) << "back on the stored row";
}

TEST_F(SoundChoiceTest, SaveStoresTheCheckedRowAndStopsThePreview)
{
    show("0");
    choice.didSelectRow(7);
    audio.calls.clear();
    choice.save();
    EXPECT_EQ(stored("Item6"), "7");
    EXPECT_EQ(choice.selected(), 7);
    EXPECT_FALSE(choice.saveEnabled());
    EXPECT_EQ(audio.calls, (Calls{"stop"}));

    choice.didSelectRow(7);
    EXPECT_FALSE(choice.saveEnabled()) << "compared with the row just saved";
}

TEST_F(SoundChoiceTest, LeavingStopsOnlyAPreviewThatWasStarted)
{
    show("0");
    choice.stopPreview();
    EXPECT_TRUE(audio.calls.empty());
    choice.didSelectRow(3);
    choice.stopPreview();
    choice.stopPreview();
    EXPECT_EQ(audio.calls, (Calls{"open " + resourceFile(3), "play", "stop"}));
}

TEST_F(SoundChoiceTest, AMissingRecordingPlaysNothingButCanStillBeSaved)
{
    std::filesystem::remove(resourceFile(4));
    show("0");
    choice.didSelectRow(4);
    EXPECT_EQ(audio.calls, (Calls{"open " + resourceFile(4)}));
    choice.save();
    EXPECT_EQ(stored("Item6"), "4");
    EXPECT_EQ(audio.calls, (Calls{"open " + resourceFile(4)})) << "no player, nothing to stop";
}

TEST_F(SoundChoiceTest, AnOwnRecordingIsCopiedUnderTheRowsNameAndPreferredFromThenOn)
{
    const auto source = temp.path() / "my call.ogg";
    test::writeFileText(source, "mine");
    std::vector<std::filesystem::path> checked;
    const auto playable = [&checked](const std::filesystem::path& file) {
        checked.push_back(file);
        return true;
    };
    EXPECT_EQ(choice.useOwnRecording(7, source, playable), SoundChoice::OwnRecording::copied);
    EXPECT_EQ(checked, (std::vector<std::filesystem::path>{source}));
    const auto own = paths.documentsFolder() / "sounds" / "7.wav";
    EXPECT_EQ(test::fileText(own), "mine");
    EXPECT_EQ(soundFile(paths, "7.wav"), own);
    EXPECT_EQ(soundFile(paths, "8.wav"), paths.resourceFolder() / "8.wav");

    show("0");
    choice.didSelectRow(7);
    EXPECT_EQ(audio.calls, (Calls{"open " + own.string(), "play"}));

    test::writeFileText(source, "newer");
    EXPECT_EQ(choice.useOwnRecording(7, source, playable), SoundChoice::OwnRecording::copied);
    EXPECT_EQ(test::fileText(own), "newer") << "a second choice replaces the first";
    EXPECT_FALSE(std::filesystem::exists(own.string() + ".part"));
}

TEST_F(SoundChoiceTest, AnUnplayableFileOrTheRandomRowCopiesNothing)
{
    const auto source = temp.path() / "notes.txt";
    test::writeFileText(source, "not a sound");
    int checks = 0;
    const auto refuse = [&checks](const std::filesystem::path&) {
        ++checks;
        return false;
    };
    EXPECT_EQ(choice.useOwnRecording(3, source, refuse), SoundChoice::OwnRecording::notPlayable);
    EXPECT_EQ(choice.useOwnRecording(SoundChoice::randomRow, source, refuse), SoundChoice::OwnRecording::notCopied);
    EXPECT_EQ(choice.useOwnRecording(11, source, refuse), SoundChoice::OwnRecording::notCopied);
    EXPECT_EQ(checks, 1);
    EXPECT_FALSE(std::filesystem::exists(paths.documentsFolder() / "sounds"));
    EXPECT_EQ(soundFile(paths, "3.wav"), paths.resourceFolder() / "3.wav");
}

TEST_F(SoundChoiceTest, AFailedCopyKeepsTheRecordingThatWorked)
{
    const auto folder = paths.documentsFolder() / "sounds";
    std::filesystem::create_directories(folder);
    test::writeFileText(folder / "5.wav", "working");
    const auto accept = [](const std::filesystem::path&) { return true; };
    EXPECT_EQ(choice.useOwnRecording(5, temp.path() / "gone.wav", accept), SoundChoice::OwnRecording::notCopied);
    EXPECT_EQ(test::fileText(folder / "5.wav"), "working");
    EXPECT_FALSE(std::filesystem::exists(folder / "5.wav.part"));
}

}  // namespace
}  // namespace kavenda
