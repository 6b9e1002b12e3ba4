#include "desktop/DesktopPaths.h"

#include <QCoreApplication>
#include <QStandardPaths>

#include <system_error>

namespace kavenda {

namespace {

std::filesystem::path fromQt(const QString& path)
{
    return std::filesystem::path(path.toStdString());
}

}  // namespace

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

DesktopPaths::DesktopPaths(std::optional<std::filesystem::path> dataDir)
    : documents_(dataDir ? *dataDir : fromQt(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation))),
      resources_(findResources(fromQt(QCoreApplication::applicationDirPath()), KAVENDA_INSTALLED_RESOURCES))
{
    std::error_code error;
    std::filesystem::create_directories(documents_, error);
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
