// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "data/WorkingCopyStart.h"

#include "data/DataFolderCheck.h"
#include "data/DataFolderLock.h"
#include "data/MyDB.h"
#include "platform/Paths.h"

#include <filesystem>
#include <system_error>

namespace kavenda {

namespace {

// Neither the lock file nor the folder, when this start made the folder.
void takeBackFirstStart(const std::filesystem::path& folder, bool folderExisted)
{
    std::error_code ignored;
    std::filesystem::remove(folder / DataFolderLock::fileName, ignored);
    if (!folderExisted)
        std::filesystem::remove(folder, ignored);
}

}  // namespace

std::optional<StartupProblem> startWorkingCopy(const Paths& paths, Log& log)
{
    // The shipped file matters only to a start that copies it: a working copy of no bytes is
    // replaced as a missing one is.
    std::error_code absent;
    const auto workingSize = std::filesystem::file_size(paths.documentsFolder() / MyDB::sharedFileName, absent);
    if (absent || workingSize == 0) {
        if (auto problem = shippedDatabaseProblem(paths.resourceFolder() / MyDB::sharedFileName))
            return problem;
    }
    const bool folderExisted = std::filesystem::exists(paths.documentsFolder(), absent);
    if (auto problem = dataFolderProblem(paths.documentsFolder()))
        return problem;
    MyDB::setUp(paths, log);
    if (const std::error_code copyError = MyDB::initialize().copyError()) {
        takeBackFirstStart(paths.documentsFolder(), folderExisted);
        return copyProblem(paths.documentsFolder(), copyError);
    }
    return workingCopyProblem(MyDB::initialize().dbPath());
}

}  // namespace kavenda
