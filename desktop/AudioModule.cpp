// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "desktop/AudioModule.h"

#include "desktop/AudioModuleEntry.h"

#include <QDir>
#include <QFileInfo>
#include <QLibrary>
#include <QStringList>
#include <QtDebug>

#include <dlfcn.h>

namespace kavenda {

namespace {

// The folder of the file this code was loaded from: the window module's, which the audio module
// lies beside; the command that loaded it lies elsewhere.
QString ownFolder()
{
    Dl_info info{};
    if (::dladdr(reinterpret_cast<void*>(&ownFolder), &info) == 0 || !info.dli_fname)
        return {};
    return QFileInfo(QString::fromLocal8Bit(info.dli_fname)).absolutePath();
}

}  // namespace

struct AudioModule::Entries {
    decltype(&kavenda_audio_player) player = nullptr;
    decltype(&kavenda_audio_playable) playable = nullptr;
};

const AudioModule::Entries& AudioModule::entries()
{
    static const Entries loaded = [] {
        const QStringList candidates = {
            QDir(ownFolder()).filePath(QStringLiteral("kavenda_audio")),
            QStringLiteral(KAVENDA_BUILT_AUDIO_MODULE),
        };
        QStringList problems;
        for (const QString& candidate : candidates) {
            // Never unloaded: the players it made live until the program ends.
            QLibrary module(candidate);
            if (!module.load()) {
                problems << module.errorString();
                continue;
            }
            Entries found;
            found.player = reinterpret_cast<decltype(found.player)>(module.resolve("kavenda_audio_player"));
            found.playable = reinterpret_cast<decltype(found.playable)>(module.resolve("kavenda_audio_playable"));
            if (found.player && found.playable)
                return found;
            problems << module.errorString();
        }
        qWarning().noquote() << "No sound: the audio module does not load:" << problems.join(QStringLiteral("; "));
        return Entries{};
    }();
    return loaded;
}

std::unique_ptr<AudioPlayer> AudioModule::makePlayer()
{
    const Entries& module = entries();
    return std::unique_ptr<AudioPlayer>(module.player ? module.player() : nullptr);
}

bool AudioModule::isPlayable(const std::filesystem::path& file)
{
    const Entries& module = entries();
    return module.playable && module.playable(file.c_str());
}

}  // namespace kavenda
