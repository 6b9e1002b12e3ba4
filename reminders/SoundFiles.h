// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

namespace kavenda {

class Paths;

// Where a person's own recordings live: `sounds/` in the data folder.
std::filesystem::path ownSoundsFolder(const Paths& paths);

// The file to play for a sound name: the person's own recording when there is one, else the
// program's.
std::filesystem::path soundFile(const Paths& paths, std::string_view fileName);
// The person's own recording for a sound name, when there is one.
std::optional<std::filesystem::path> ownRecording(const Paths& paths, std::string_view fileName);

}  // namespace kavenda
