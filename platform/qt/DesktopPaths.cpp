#include "platform/qt/DesktopPaths.h"

#include <QCoreApplication>
#include <QStandardPaths>

#include <system_error>

namespace kavenda {

namespace {

std::filesystem::path fromQt(const QString& path) { return std::filesystem::path(path.toStdString()); }

std::filesystem::path findResources() {
    const std::filesystem::path exe = fromQt(QCoreApplication::applicationDirPath());
    const std::filesystem::path buildTree = exe.parent_path() / "resources";
    std::error_code error;
    if (std::filesystem::is_directory(buildTree, error))
        return buildTree;
    return exe.parent_path() / "share" / "kavenda";
}

}  // namespace

DesktopPaths::DesktopPaths(std::optional<std::filesystem::path> dataDir)
    : documents_(dataDir ? *dataDir : fromQt(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation))),
      resources_(findResources()) {
    std::error_code error;
    std::filesystem::create_directories(documents_, error);
}

std::filesystem::path DesktopPaths::documentsFolder() const { return documents_; }

std::filesystem::path DesktopPaths::resourceFolder() const { return resources_; }

}  // namespace kavenda
