// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "data/DataFolderLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>

namespace kavenda {

DataFolderLock::DataFolderLock(const std::filesystem::path& folder)
{
    const std::filesystem::path file = folder / fileName;
    descriptor_ = ::open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    if (descriptor_ < 0)
        return;
    int result = 0;
    do
        result = ::flock(descriptor_, LOCK_EX);
    while (result != 0 && errno == EINTR);
    if (result != 0) {
        ::close(descriptor_);
        descriptor_ = -1;
    }
}

DataFolderLock::~DataFolderLock()
{
    if (descriptor_ >= 0)
        ::close(descriptor_);
}

}  // namespace kavenda
