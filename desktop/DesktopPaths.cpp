// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "desktop/DesktopPaths.h"

#include <cstdlib>
#include <system_error>

namespace kavenda {

std::filesystem::path DesktopPaths::findResources(const std::filesystem::path& programFolder,
                                                  const std::filesystem::path& installedRelative)
{
    const std::filesystem::path installed = (programFolder / installedRelative).lexically_normal();
    const std::filesystem::path buildTree = programFolder.parent_path() / "resources";
    std::error_code error;
    if (!std::filesystem::is_directory(installed, error) && std::filesystem::is_directory(buildTree, error))
        return buildTree;
    return installed;
}

std::filesystem::path DesktopPaths::userDataFolder()
{
    // A relative XDG_DATA_HOME is invalid and ignored, as the XDG rules say.
    const char* dataHome = std::getenv("XDG_DATA_HOME");
    if (dataHome && std::filesystem::path(dataHome).is_absolute())
        return std::filesystem::path(dataHome) / "kavenda";
    const char* home = std::getenv("HOME");
    if (home && std::filesystem::path(home).is_absolute())
        return std::filesystem::path(home) / ".local" / "share" / "kavenda";
    return {};
}

std::filesystem::path DesktopPaths::programFolder()
{
    std::error_code error;
    return std::filesystem::read_symlink("/proc/self/exe", error).parent_path();
}

DesktopPaths::DesktopPaths(std::optional<std::filesystem::path> dataDir,
                           const std::filesystem::path& installedResources)
    : documents_(dataDir ? *dataDir : userDataFolder()), resources_(findResources(programFolder(), installedResources))
{
}

std::filesystem::path DesktopPaths::documentsFolder() const
{
    return documents_;
}

std::filesystem::path DesktopPaths::resourceFolder() const
{
    return resources_;
}

}  // namespace kavenda
