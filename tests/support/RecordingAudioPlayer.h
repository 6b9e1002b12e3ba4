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
        return std::filesystem::is_regular_file(file);
    }
    void play() override { calls.push_back("play"); }
    void stop() override { calls.push_back("stop"); }

    std::vector<std::string> calls;
};

}  // namespace kavenda::test
