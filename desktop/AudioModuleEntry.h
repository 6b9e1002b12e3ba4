// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/AudioPlayer.h"

// What the multimedia module exports, by C names that its loader resolves.
extern "C" {
// A new player, owned by the caller.
kavenda::AudioPlayer* kavenda_audio_player();
// True when the media machinery opens the file, a path in the system's encoding, and finds a sound in it.
bool kavenda_audio_playable(const char* file);
}
