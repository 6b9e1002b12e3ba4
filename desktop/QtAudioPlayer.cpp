// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "desktop/QtAudioPlayer.h"

#include <QFileInfo>
#include <QUrl>

namespace kavenda {

QtAudioPlayer::QtAudioPlayer() = default;

QtAudioPlayer::~QtAudioPlayer() = default;

QMediaPlayer& QtAudioPlayer::player()
{
    if (!player_) {
        output_ = std::make_unique<QAudioOutput>();
        player_ = std::make_unique<QMediaPlayer>();
        player_->setAudioOutput(output_.get());
    }
    return *player_;
}

// The player loads in the background; a file that is not there or cannot be read fails here.
bool QtAudioPlayer::open(const std::filesystem::path& file)
{
    player().stop();
    const QFileInfo info(QString::fromStdString(file.string()));
    if (!info.isFile() || !info.isReadable()) {
        player_->setSource(QUrl());
        return false;
    }
    player_->setSource(QUrl::fromLocalFile(info.absoluteFilePath()));
    return true;
}

void QtAudioPlayer::play()
{
    player().play();
}

void QtAudioPlayer::stop()
{
    if (player_)
        player_->stop();
}

bool QtAudioPlayer::isPlaying() const
{
    return player_ && player_->playbackState() == QMediaPlayer::PlayingState;
}

}  // namespace kavenda
