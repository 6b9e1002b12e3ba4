// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <filesystem>

namespace kavenda {

// True when the media machinery opens the file and finds a sound in it; waits for it to say so.
bool isPlayableAudio(const std::filesystem::path& file);

}  // namespace kavenda
