// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "desktop/AudioModule.h"

#include "desktop/AudioModuleEntry.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibrary>
#include <QStringList>
#include <QtDebug>

namespace kavenda {

struct AudioModule::Entries {
    decltype(&kavenda_audio_player) player = nullptr;
    decltype(&kavenda_audio_playable) playable = nullptr;
};

const AudioModule::Entries& AudioModule::entries()
{
    static const Entries loaded = [] {
        const QDir programFolder(QCoreApplication::applicationDirPath());
        const QStringList candidates = {
            programFolder.filePath(QStringLiteral("kavenda_audio")),
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
