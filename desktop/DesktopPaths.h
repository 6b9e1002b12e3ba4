#pragma once

#include "platform/Paths.h"

#include <optional>

namespace kavenda {

// The documents folder is the one given on the command line, else the user's data folder
// (created when missing). Resources are found relative to the executable: installed in
// <prefix>/share/kavenda, else in the build tree (<build>/app/kavenda and <build>/resources).
class DesktopPaths final : public Paths {
public:
    explicit DesktopPaths(std::optional<std::filesystem::path> dataDir = std::nullopt);

    // The resource folder of a program in programFolder, whose installed resources lie at installedRelative
    // from it. The installed place comes first, so that no folder that happens to be called "resources"
    // beside an installed program shadows it; when neither exists it is still the installed place, so
    // that a program copied alone names the files it misses where they belong.
    static std::filesystem::path findResources(const std::filesystem::path& programFolder,
                                               const std::filesystem::path& installedRelative);

    std::filesystem::path documentsFolder() const override;
    std::filesystem::path resourceFolder() const override;

private:
    std::filesystem::path documents_;
    std::filesystem::path resources_;
};

}  // namespace kavenda
