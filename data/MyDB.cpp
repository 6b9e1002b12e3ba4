#include "data/MyDB.h"

#include "data/NameMatching.h"
#include "platform/Log.h"
#include "platform/Paths.h"
#include <cassert>

#include <sqlite3.h>

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
    static MyDB shared("Icons", *sharedPaths, *sharedLog);
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
    removeLeftoverCopies();
    // A file of no bytes is what a failed copy of old left behind: it holds nothing to keep.
    std::error_code error;
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

// Copies that a killed process left under their temporary names.
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
    const bool copied =
        fs::copy_file(paths_.resourceFolder() / fileName_, partial, fs::copy_options::overwrite_existing, error)
        && syncToDisk(partial);
    if (copied)
        fs::rename(partial, target, error);
    if (!copied || error) {
        fs::remove(partial, error);
        return false;
    }
    syncToDisk(target.parent_path());
    return true;
}

int MyDB::loadDB()
{
    close();
    const int result = sqlite3_open(dbPath_.c_str(), &database_);
    if (result == SQLITE_OK) {
        sqlite3_busy_timeout(database_, busyTimeoutMilliseconds);
        installNameMatching(database_);
    }
    return result;
}

void MyDB::close()
{
    sqlite3_close(database_);
    database_ = nullptr;
}

RowSet MyDB::run(std::string_view sql)
{
    if (loadDB() != SQLITE_OK) {
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
    loadDB();
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
