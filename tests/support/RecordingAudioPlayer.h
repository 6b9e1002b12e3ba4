// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/AudioPlayer.h"

#include <string>
#include <vector>

namespace kavenda::test {

// Writes down what it is asked: "open <file>", "play", "stop". Files that do not exist fail to open.
class RecordingAudioPlayer final : public AudioPlayer {
public:
    bool open(const std::filesystem::path& file) override
    {
        calls.push_back("open " + file.string());
        playing = false;
        return std::filesystem::is_regular_file(file);
    }
    void play() override
    {
        calls.push_back("play");
        playing = true;
    }
    void stop() override
    {
        calls.push_back("stop");
        playing = false;
    }
    bool isPlaying() const override { return playing; }

    std::vector<std::string> calls;
    // Until stopped or opened again; a test ends a sound by clearing it.
    bool playing = false;
};

}  // namespace kavenda::test
