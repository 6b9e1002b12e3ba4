// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <filesystem>

namespace kavenda {

// An advisory lock on the data folder (flock on a lock file inside it), held for the lifetime of
// the object: the first copy of the database and the yearly top-up run under it, so that two
// processes on one folder never write the same file at once. The kernel drops it when the
// holder dies, so a crash never leaves the folder locked.
class DataFolderLock {
public:
    // Blocks until the lock is held; locked() is false when the lock file cannot be opened
    // (a folder that is missing or read-only), and the caller goes on without it.
    explicit DataFolderLock(const std::filesystem::path& folder);
    ~DataFolderLock();
    DataFolderLock(const DataFolderLock&) = delete;
    DataFolderLock& operator=(const DataFolderLock&) = delete;

    bool locked() const { return descriptor_ >= 0; }

    static constexpr const char* fileName = ".lock";

private:
    int descriptor_ = -1;
};

}  // namespace kavenda
