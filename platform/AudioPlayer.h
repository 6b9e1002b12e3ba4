// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <filesystem>
#include <functional>

namespace kavenda {

// Whether the media machinery opens a file and finds a sound in it.
using PlayableCheck = std::function<bool(const std::filesystem::path&)>;

class AudioPlayer {
public:
    virtual ~AudioPlayer() = default;
    // False when the file cannot be opened; the previous sound is stopped either way.
    virtual bool open(const std::filesystem::path& file) = 0;
    virtual void play() = 0;
    virtual void stop() = 0;
    // True from play until the sound ends or is stopped.
    virtual bool isPlaying() const = 0;
};

}  // namespace kavenda
