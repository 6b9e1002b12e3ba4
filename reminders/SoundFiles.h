#pragma once

#include <filesystem>
#include <string_view>

namespace kavenda {

class Paths;

// Where a person's own recordings live: `sounds/` in the data folder.
std::filesystem::path ownSoundsFolder(const Paths& paths);

// The file to play for a sound name: the person's own recording when there is one, else the
// program's.
std::filesystem::path soundFile(const Paths& paths, std::string_view fileName);

}  // namespace kavenda
