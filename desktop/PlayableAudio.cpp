// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "desktop/PlayableAudio.h"

#include <QEventLoop>
#include <QFileInfo>
#include <QMediaPlayer>
#include <QTimer>
#include <QUrl>

namespace kavenda {

namespace {

// Loading is asynchronous; a file that neither loads nor fails by then counts as unplayable.
constexpr int loadTimeoutMilliseconds = 10000;

bool settled(QMediaPlayer::MediaStatus status)
{
    return status == QMediaPlayer::LoadedMedia || status == QMediaPlayer::InvalidMedia;
}

}  // namespace

bool isPlayableAudio(const std::filesystem::path& file)
{
    const QFileInfo info(QString::fromStdString(file.string()));
    if (!info.isFile() || !info.isReadable() || info.size() == 0)
        return false;
    QMediaPlayer player;
    QEventLoop loop;
    QObject::connect(&player, &QMediaPlayer::mediaStatusChanged, &loop, [&loop](QMediaPlayer::MediaStatus status) {
        if (settled(status))
            loop.quit();
    });
    QObject::connect(&player, &QMediaPlayer::errorOccurred, &loop, &QEventLoop::quit);
    QTimer::singleShot(loadTimeoutMilliseconds, &loop, &QEventLoop::quit);
    player.setSource(QUrl::fromLocalFile(info.absoluteFilePath()));
    if (!settled(player.mediaStatus()) && player.error() == QMediaPlayer::NoError)
        loop.exec();
    return player.mediaStatus() == QMediaPlayer::LoadedMedia && player.hasAudio();
}

}  // namespace kavenda
