#pragma once

#include "platform/Paths.h"

#include <optional>

namespace kavenda {

// The documents folder is the one given on the command line, else the user's data folder
// (created when missing). Resources are found beside the executable in the build tree
// (<build>/app/kavenda and <build>/resources), else in <prefix>/share/kavenda.
class DesktopPaths final : public Paths {
public:
    explicit DesktopPaths(std::optional<std::filesystem::path> dataDir = std::nullopt);

    std::filesystem::path documentsFolder() const override;
    std::filesystem::path resourceFolder() const override;

private:
    std::filesystem::path documents_;
    std::filesystem::path resources_;
};

}  // namespace kavenda
