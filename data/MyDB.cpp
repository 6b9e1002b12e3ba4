// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "data/MyDB.h"

#include "data/DataFolderLock.h"
#include "data/NameMatching.h"
#include "platform/Log.h"
#include "platform/Paths.h"
#include <cassert>

#include <sqlite3.h>

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <memory>
#include <string>
#include <system_error>
#include <unistd.h>

namespace kavenda {

namespace fs = std::filesystem;

namespace {

std::string columnText(sqlite3_stmt* statement, int column)
{
    const auto* text = sqlite3_column_text(statement, column);
    return text ? std::string(reinterpret_cast<const char*>(text)) : std::string();
}

std::string convertedValue(sqlite3_stmt* statement, int column)
{
    switch (sqlite3_column_type(statement, column)) {
    case SQLITE_INTEGER:
        return std::to_string(sqlite3_column_int(statement, column));
    case SQLITE_NULL:
        return {};
    default:
        return columnText(statement, column);
    }
}

// A plain copy that keeps the cause of a failure (the library's copy says only "I/O error" for a
// full disk).
std::error_code copyFile(const fs::path& from, const fs::path& to)
{
    const int source = ::open(from.c_str(), O_RDONLY | O_CLOEXEC);
    if (source < 0)
        return {errno, std::generic_category()};
    const int target = ::open(to.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    if (target < 0) {
        const std::error_code error(errno, std::generic_category());
        ::close(source);
        return error;
    }
    std::error_code error;
    char buffer[64 * 1024];
    for (;;) {
        const ssize_t read = ::read(source, buffer, sizeof buffer);
        if (read < 0 && errno == EINTR)
            continue;
        if (read <= 0) {
            if (read < 0)
                error.assign(errno, std::generic_category());
            break;
        }
        ssize_t written = 0;
        while (written < read && !error) {
            const ssize_t now = ::write(target, buffer + written, static_cast<std::size_t>(read - written));
            if (now < 0 && errno != EINTR)
                error.assign(errno, std::generic_category());
            written += now > 0 ? now : 0;
        }
        if (error)
            break;
    }
    if (!error && ::fsync(target) != 0)
        error.assign(errno, std::generic_category());
    if (::close(target) != 0 && !error)
        error.assign(errno, std::generic_category());
    ::close(source);
    return error;
}

bool syncToDisk(const fs::path& path)
{
    const int descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0)
        return false;
    const bool synced = ::fsync(descriptor) == 0;
    ::close(descriptor);
    return synced;
}

}  // namespace

namespace {
const Paths* sharedPaths = nullptr;
Log* sharedLog = nullptr;
}  // namespace

MyDB& MyDB::initialize()
{
    assert(sharedPaths && sharedLog && "the shell sets up the database at start");
    static MyDB shared(std::string(sharedFileName), *sharedPaths, *sharedLog);
    return shared;
}

void MyDB::setUp(const Paths& paths, Log& log)
{
    sharedPaths = &paths;
    sharedLog = &log;
}

MyDB::MyDB(std::string fileName, const Paths& paths, Log& log)
    : paths_(paths), log_(log), fileName_(std::move(fileName))
{
    dbPath_ = getDBPath();
    // Two first starts at once: one copies, the other finds the copy made.
    std::error_code error;
    fs::create_directories(fs::path(dbPath_).parent_path(), error);
    const DataFolderLock lock(fs::path(dbPath_).parent_path());
    removeLeftoverCopies();
    // A file of no bytes is what a failed copy of old left behind: it holds nothing to keep.
    if (!isExist() || fs::file_size(dbPath_, error) == 0)
        copyDB();
}

bool MyDB::isExist() const
{
    std::error_code error;
    return fs::exists(dbPath_, error);
}

std::string MyDB::getDBPath() const
{
    return (paths_.documentsFolder() / fileName_).string();
}

std::string MyDB::partialPrefix() const
{
    return fileName_ + ".partial-";
}

// Copies that a killed process left under their temporary names; only the holder of the data
// folder's lock copies, so none of them is still being written.
void MyDB::removeLeftoverCopies() const
{
    std::error_code error;
    const std::string prefix = partialPrefix();
    for (fs::directory_iterator entry(fs::path(dbPath_).parent_path(), error), end; !error && entry != end;
         entry.increment(error)) {
        if (entry->path().filename().string().starts_with(prefix)) {
            std::error_code ignored;
            fs::remove(entry->path(), ignored);
        }
    }
}

// The copy lands under a temporary name, reaches the disk and is only then renamed into
// place, so neither a copy cut short nor a power cut leaves a half file that later starts
// would take for the working copy.
bool MyDB::copyDB()
{
    std::error_code error;
    const fs::path target(dbPath_);
    fs::create_directories(target.parent_path(), error);
    const fs::path partial = target.parent_path() / (partialPrefix() + std::to_string(::getpid()));
    error = copyFile(paths_.resourceFolder() / fileName_, partial);
    const bool copied = !error;
    if (copied)
        fs::rename(partial, target, error);
    if (!copied || error) {
        copyError_ = error;
        std::error_code ignored;
        fs::remove(partial, ignored);
        return false;
    }
    copyError_.clear();
    syncToDisk(target.parent_path());
    return true;
}

int MyDB::loadDB()
{
    close();
    const int result = sqlite3_open(dbPath_.c_str(), &database_);
    if (result == SQLITE_OK) {
        // Another writer (a second program, the yearly top-up) holds the file a moment: wait.
        sqlite3_busy_timeout(database_, busyTimeoutMilliseconds);
        installNameMatching(database_);
    }
    return result;
}

// Inside a transaction the held connection serves every call.
bool MyDB::open()
{
    return held_ || loadDB() == SQLITE_OK;
}

void MyDB::close()
{
    if (held_)
        return;
    sqlite3_close(database_);
    database_ = nullptr;
}

bool MyDB::runOnHeld(const char* statement)
{
    return sqlite3_exec(database_, statement, nullptr, nullptr, nullptr) == SQLITE_OK;
}

bool MyDB::inTransaction(const std::function<bool()>& work)
{
    if (held_)
        return work();
    // The write lock is taken at once, so no other writer slips in between the statements.
    if (loadDB() != SQLITE_OK || !runOnHeld("BEGIN IMMEDIATE")) {
        close();
        return false;
    }
    held_ = true;
    bool kept = work();
    kept = kept && runOnHeld("COMMIT");
    if (!kept)
        runOnHeld("ROLLBACK");
    held_ = false;
    close();
    return kept;
}

RowSet MyDB::run(std::string_view sql)
{
    if (!open()) {
        // sqlite3_open hands back a handle even when it fails; it is only released.
        close();
        return {};
    }
    const std::string text(sql);
    sqlite3_stmt* statement = nullptr;
    sqlite3_prepare_v2(database_, text.c_str(), -1, &statement, nullptr);

    const int columns = sqlite3_column_count(statement);
    std::vector<std::string> names;
    names.reserve(static_cast<std::size_t>(columns));
    for (int c = 0; c < columns; ++c) {
        const char* name = sqlite3_column_name(statement, c);
        names.emplace_back(name ? name : "");
    }
    columnList_ = std::move(names);

    RowSet rows;
    while (sqlite3_step(statement) == SQLITE_ROW) {
        Row row;
        for (int c = 0; c < columns; ++c)
            row[columnList_[static_cast<std::size_t>(c)]] = convertedValue(statement, c);
        rows.push_back(std::move(row));
    }
    sqlite3_finalize(statement);
    close();
    return rows;
}

RowSet MyDB::Execute(std::string_view sql)
{
    return run(sql);
}

bool MyDB::ExecuteNonQuery(std::string_view sql)
{
    open();
    const std::string text(sql);
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(database_, text.c_str(), -1, &statement, nullptr) != SQLITE_OK)
        log_.line(sqlite3_errmsg(database_));
    const int result = sqlite3_step(statement);
    sqlite3_finalize(statement);
    close();
    return result == SQLITE_DONE;
}

std::optional<std::string> MyDB::ExecuteScaler(std::string_view sql)
{
    const RowSet rows = run(sql);
    if (rows.empty() || columnList_.empty())
        return std::nullopt;
    return getValue(rows, 0, columnList_.front());
}

std::optional<std::string> MyDB::getValue(const RowSet& rows, std::size_t rowNumber, const std::string& coulumnName)
{
    if (rowNumber >= rows.size())
        return std::nullopt;
    const Row& row = rows[rowNumber];
    const auto found = row.find(coulumnName);
    if (found == row.end())
        return std::nullopt;
    return found->second;
}

}  // namespace kavenda
