// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/AudioPlayer.h"

#include <QAudioOutput>
#include <QMediaPlayer>

#include <memory>

namespace kavenda {

// The media player is made on first use: loading the multimedia back end costs a start
// that plays nothing (the reminders list, most launches) time and memory.
class QtAudioPlayer final : public AudioPlayer {
public:
    QtAudioPlayer();
    ~QtAudioPlayer() override;

    bool open(const std::filesystem::path& file) override;
    void play() override;
    void stop() override;
    bool isPlaying() const override;

private:
    QMediaPlayer& player();

    std::unique_ptr<QAudioOutput> output_;
    std::unique_ptr<QMediaPlayer> player_;
};

}  // namespace kavenda
