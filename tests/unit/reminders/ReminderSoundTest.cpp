// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "reminders/ReminderSound.h"

#include "platform/AudioPlayer.h"
#include "tests/support/FixedPaths.h"
#include "tests/support/RecordingLog.h"

#include <gtest/gtest.h>

#include <set>

namespace kavenda {
namespace {

// Plays the files it knows until stopped or told that the sound ended.
class RecordingAudio final : public AudioPlayer {
public:
    bool open(const std::filesystem::path& file) override
    {
        playing = false;
        opened.push_back(file);
        return readable.contains(file.filename().string());
    }
    void play() override { playing = true; }
    void stop() override
    {
        playing = false;
        ++stops;
    }
    bool isPlaying() const override { return playing; }

    std::set<std::string> readable{"3.wav", "alarm.wav"};
    std::vector<std::filesystem::path> opened;
    bool playing = false;
    int stops = 0;
};

class ReminderSoundTest : public ::testing::Test {
protected:
    NotificationRecord reminder(const std::string& soundName)
    {
        return {{}, "Asia/Tehran", "text", "Ok", soundName, {}};
    }

    RecordingAudio audio;
    FixedPaths paths{"/documents", "/resources"};
    test::RecordingLog log;
    ReminderSound sound{audio, paths, log};
};

TEST_F(ReminderSoundTest, PlaysTheReminderSoundFromTheResources)
{
    const int ticket = sound.play(reminder("3.wav"));
    EXPECT_NE(ticket, 0);
    EXPECT_EQ(audio.opened, std::vector<std::filesystem::path>{"/resources/3.wav"});
    EXPECT_TRUE(sound.isPlaying());
    // The sound ends by itself: nothing is left to stop.
    audio.playing = false;
    EXPECT_FALSE(sound.isPlaying());
    sound.stop();
    EXPECT_EQ(audio.stops, 0);
}

TEST_F(ReminderSoundTest, WithoutASoundNothingPlays)
{
    EXPECT_EQ(sound.play(reminder("")), 0);
    EXPECT_EQ(sound.play(reminder("missing.wav")), 0);
    EXPECT_FALSE(sound.isPlaying());
    EXPECT_EQ(audio.opened, std::vector<std::filesystem::path>{"/resources/missing.wav"});
}

TEST_F(ReminderSoundTest, ANewerReminderCutsTheOlderShortAndKeepsItsOwnTicket)
{
    const int older = sound.play(reminder("3.wav"));
    const int newer = sound.play(reminder("alarm.wav"));
    EXPECT_NE(older, newer);
    EXPECT_EQ(audio.stops, 1);
    EXPECT_TRUE(sound.isPlaying());

    // Closing the older reminder's alert leaves the newer sound alone; its own stops it.
    sound.stop(older);
    EXPECT_TRUE(sound.isPlaying());
    sound.stop(newer);
    EXPECT_FALSE(sound.isPlaying());
    EXPECT_EQ(audio.stops, 2);
    EXPECT_EQ(log.lines,
              (std::vector<std::string>{"sound playing: 3.wav", "sound stopped", "sound playing: alarm.wav",
                                        "sound stopped"}));
}

}  // namespace
}  // namespace kavenda
