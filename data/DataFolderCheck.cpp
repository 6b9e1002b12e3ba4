// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "data/DataFolderCheck.h"

#include <cerrno>

#include <unistd.h>

namespace kavenda {

namespace fs = std::filesystem;

namespace {

struct Cause {
    std::string english;
    std::string persian;
};

Cause causeOf(std::error_code error)
{
    switch (error.value()) {
    case ENOSPC:
    case EDQUOT:
        return {"no space is left on its disk", "جای خالی روی دیسک نمانده است."};
    case EROFS:
    case EACCES:
    case EPERM:
        return {"it is read-only", "این پوشه فقط خواندنی است."};
    case ENOTDIR:
    case EEXIST:
        return {"it is not a folder", "این نام از آن یک پرونده است، نه یک پوشه."};
    default:
        return {error.message(), "خطای سیستم: " + error.message()};
    }
}

StartupProblem problemIn(const fs::path& folder, std::error_code cause)
{
    const Cause named = causeOf(cause);
    return {"kavenda: cannot keep the data in " + folder.string() + ": " + named.english,
            "داده های برنامه در این پوشه جا نمی گیرد:\n" + folder.string() + "\n" + named.persian};
}

// The nearest part of the path that exists: "a/file/kavenda" gives "a/file".
fs::path nearestExisting(const fs::path& folder)
{
    std::error_code error;
    fs::path part = fs::absolute(folder, error);
    while (!fs::exists(part, error) && part != part.parent_path())
        part = part.parent_path();
    return part;
}

}  // namespace

std::optional<StartupProblem> dataFolderProblem(const fs::path& folder)
{
    if (folder.empty())
        return StartupProblem{"kavenda: neither HOME nor XDG_DATA_HOME names a folder for the data; set HOME or "
                              "start with --data-dir FOLDER",
                              "پوشه ای برای داده های برنامه پیدا نشد: متغیر HOME تعریف نشده است.\nبرنامه را با "
                              "--data-dir و نام یک پوشه باز کنید."};
    const fs::path existing = nearestExisting(folder);
    std::error_code error;
    if (!fs::is_directory(existing, error))
        return problemIn(existing, std::make_error_code(std::errc::not_a_directory));
    fs::create_directories(folder, error);
    if (error)
        return problemIn(existing, error);
    if (::access(folder.c_str(), W_OK | X_OK) != 0)
        return problemIn(folder, std::error_code(errno, std::generic_category()));
    return std::nullopt;
}

StartupProblem copyProblem(const fs::path& folder, std::error_code cause)
{
    return problemIn(folder, cause);
}

}  // namespace kavenda
