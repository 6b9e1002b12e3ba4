#pragma once

#include "platform/AudioPlayer.h"

#include <QAudioOutput>
#include <QMediaPlayer>

namespace kavenda {

class QtAudioPlayer final : public AudioPlayer {
public:
    QtAudioPlayer();

    bool open(const std::filesystem::path& file) override;
    void play() override;
    void stop() override;
    bool isPlaying() const override;

private:
    QAudioOutput output_;
    QMediaPlayer player_;
};

}  // namespace kavenda
