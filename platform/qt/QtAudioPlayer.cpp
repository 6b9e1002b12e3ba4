#include "platform/qt/QtAudioPlayer.h"

#include <QFileInfo>
#include <QUrl>

namespace kavenda {

QtAudioPlayer::QtAudioPlayer() { player_.setAudioOutput(&output_); }

// The player loads in the background; a file that is not there or cannot be read fails here.
bool QtAudioPlayer::open(const std::filesystem::path& file) {
    player_.stop();
    const QFileInfo info(QString::fromStdString(file.string()));
    if (!info.isFile() || !info.isReadable()) {
        player_.setSource(QUrl());
        return false;
    }
    player_.setSource(QUrl::fromLocalFile(info.absoluteFilePath()));
    return true;
}

void QtAudioPlayer::play() { player_.play(); }

void QtAudioPlayer::stop() { player_.stop(); }

bool QtAudioPlayer::isPlaying() const { return player_.playbackState() == QMediaPlayer::PlayingState; }

}  // namespace kavenda
