// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "desktop/LazyAudioPlayer.h"

#include "desktop/AudioModule.h"

namespace kavenda {

AudioPlayer* LazyAudioPlayer::player()
{
    if (!tried_) {
        tried_ = true;
        player_ = AudioModule::makePlayer();
    }
    return player_.get();
}

bool LazyAudioPlayer::open(const std::filesystem::path& file)
{
    AudioPlayer* audio = player();
    return audio && audio->open(file);
}

void LazyAudioPlayer::play()
{
    if (AudioPlayer* audio = player())
        audio->play();
}

void LazyAudioPlayer::stop()
{
    if (player_)
        player_->stop();
}

bool LazyAudioPlayer::isPlaying() const
{
    return player_ && player_->isPlaying();
}

}  // namespace kavenda
