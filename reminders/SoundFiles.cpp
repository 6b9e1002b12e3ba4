#include "reminders/SoundFiles.h"

#include "platform/Paths.h"

#include <system_error>

namespace kavenda {

std::filesystem::path ownSoundsFolder(const Paths& paths)
{
    return paths.documentsFolder() / "sounds";
}

std::filesystem::path soundFile(const Paths& paths, std::string_view fileName)
{
    std::filesystem::path own = ownSoundsFolder(paths) / fileName;
    std::error_code error;
    if (std::filesystem::is_regular_file(own, error))
        return own;
    return paths.resourceFolder() / fileName;
}

}  // namespace kavenda
