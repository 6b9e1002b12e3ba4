// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "desktop/AudioModuleEntry.h"

#include "desktop/PlayableAudio.h"
#include "desktop/QtAudioPlayer.h"

extern "C" {

kavenda::AudioPlayer* kavenda_audio_player()
{
    return new kavenda::QtAudioPlayer();
}

bool kavenda_audio_playable(const char* file)
{
    return kavenda::isPlayableAudio(std::filesystem::path(file));
}
}
