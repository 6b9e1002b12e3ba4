// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/Paths.h"

#include <optional>

namespace kavenda {

// The documents folder is the one given on the command line, else the user's data folder
// (made at start, where the reasons it cannot be are told). Resources are found relative to the executable: installed
// in <prefix>/share/kavenda, else in the build tree (<build>/app/kavenda and <build>/resources).
class DesktopPaths final : public Paths {
public:
    // installedResources: where an installed program finds its resources, from its own folder.
    DesktopPaths(std::optional<std::filesystem::path> dataDir, const std::filesystem::path& installedResources);

    // The resource folder of a program in programFolder, whose installed resources lie at installedRelative
    // from it. The installed place comes first, so that no folder that happens to be called "resources"
    // beside an installed program shadows it; when neither exists it is still the installed place, so
    // that a program copied alone names the files it misses where they belong.
    static std::filesystem::path findResources(const std::filesystem::path& programFolder,
                                               const std::filesystem::path& installedRelative);

    // The folder of the running executable.
    static std::filesystem::path programFolder();
    // $XDG_DATA_HOME/kavenda, else ~/.local/share/kavenda; empty without an absolute HOME.
    static std::filesystem::path userDataFolder();

    std::filesystem::path documentsFolder() const override;
    std::filesystem::path resourceFolder() const override;

private:
    std::filesystem::path documents_;
    std::filesystem::path resources_;
};

}  // namespace kavenda
