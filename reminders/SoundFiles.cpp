// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "reminders/SoundFiles.h"

#include "platform/Paths.h"

#include <system_error>

namespace kavenda {

std::filesystem::path ownSoundsFolder(const Paths& paths)
{
    return paths.documentsFolder() / "sounds";
}

std::optional<std::filesystem::path> ownRecording(const Paths& paths, std::string_view fileName)
{
    std::filesystem::path own = ownSoundsFolder(paths) / fileName;
    std::error_code error;
    if (std::filesystem::is_regular_file(own, error))
        return own;
    return std::nullopt;
}

std::filesystem::path soundFile(const Paths& paths, std::string_view fileName)
{
    return ownRecording(paths, fileName).value_or(paths.resourceFolder() / fileName);
}

}  // namespace kavenda
