// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "reminders/ReminderSound.h"

#include "tests/support/FixedPaths.h"
#include "tests/support/RecordingAudioPlayer.h"
#include "tests/support/RecordingLog.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <fstream>

namespace kavenda {
namespace {

using Calls = std::vector<std::string>;

class ReminderSoundTest : public ::testing::Test {
protected:
    ReminderSoundTest()
    {
        for (const char* name : {"3.wav", "alarm.wav"})
            std::ofstream(temp.path() / name) << "sound";
    }

    static NotificationRecord reminder(const std::string& soundName) { return {{}, "", "", "", soundName, {}}; }
    std::string file(const std::string& name) const { return (temp.path() / name).string(); }

    test::TempFolder temp;
    FixedPaths paths{"/documents", temp.path()};
    test::RecordingAudioPlayer audio;
    test::RecordingLog log;
    ReminderSound sound{audio, paths, log};
};

TEST_F(ReminderSoundTest, PlaysTheReminderSoundFromTheResourcesUntilItEnds)
{
    EXPECT_EQ(sound.play(reminder("")), 0);
    EXPECT_EQ(sound.play(reminder("missing.wav")), 0);
    EXPECT_FALSE(sound.isPlaying());
    EXPECT_NE(sound.play(reminder("3.wav")), 0);
    EXPECT_TRUE(sound.isPlaying());
    // The sound ends by itself: nothing is left to stop.
    audio.playing = false;
    EXPECT_FALSE(sound.isPlaying());
    sound.stop();
    EXPECT_EQ(audio.calls, (Calls{"open " + file("missing.wav"), "open " + file("3.wav"), "play"}));
}

TEST_F(ReminderSoundTest, ANewerReminderCutsTheOlderShortAndKeepsItsOwnTicket)
{
    const int older = sound.play(reminder("3.wav"));
    const int newer = sound.play(reminder("alarm.wav"));
    EXPECT_NE(older, newer);
    EXPECT_TRUE(sound.isPlaying());

    // Closing the older reminder's alert leaves the newer sound alone; its own stops it.
    sound.stop(older);
    EXPECT_TRUE(sound.isPlaying());
    sound.stop(newer);
    EXPECT_FALSE(sound.isPlaying());
    EXPECT_EQ(audio.calls,
              (Calls{"open " + file("3.wav"), "play", "stop", "open " + file("alarm.wav"), "play", "stop"}));
    EXPECT_EQ(log.lines,
              (std::vector<std::string>{"sound playing: 3.wav", "sound stopped", "sound playing: alarm.wav",
                                        "sound stopped"}));
}

}  // namespace
}  // namespace kavenda
