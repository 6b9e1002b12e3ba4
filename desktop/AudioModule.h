// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <filesystem>
#include <memory>

namespace kavenda {

class AudioPlayer;

// The multimedia back end is a module of its own, loaded when a sound is first wanted: linked
// into the program it would load two dozen libraries at every start, also the many that play
// nothing. Looked for beside the program, where it is installed, and in the build tree.
class AudioModule {
public:
    // Null when the module cannot be loaded; the reason goes to the log once.
    static std::unique_ptr<AudioPlayer> makePlayer();
    static bool isPlayable(const std::filesystem::path& file);

private:
    struct Entries;
    static const Entries& entries();
};

}  // namespace kavenda
