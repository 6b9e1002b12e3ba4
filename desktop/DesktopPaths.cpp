#include "desktop/DesktopPaths.h"

#include <QCoreApplication>

#include <cstdlib>
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

DesktopPaths::DesktopPaths(std::optional<std::filesystem::path> dataDir)
    : documents_(dataDir ? *dataDir : userDataFolder()),
      resources_(findResources(fromQt(QCoreApplication::applicationDirPath()), KAVENDA_INSTALLED_RESOURCES))
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
