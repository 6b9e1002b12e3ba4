// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/AudioPlayer.h"

#include <memory>

namespace kavenda {

// The program's player: the multimedia module's, made when a sound is first opened or played,
// so that a start which plays nothing never loads it. Without the module nothing opens.
class LazyAudioPlayer final : public AudioPlayer {
public:
    bool open(const std::filesystem::path& file) override;
    void play() override;
    void stop() override;
    bool isPlaying() const override;

private:
    AudioPlayer* player();

    std::unique_ptr<AudioPlayer> player_;
    bool tried_ = false;
};

}  // namespace kavenda
