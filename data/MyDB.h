// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "data/RowSet.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

struct sqlite3;

namespace kavenda {

class Log;
class Paths;

// The only door to the data: one SQLite file, copied once from the resources into the
// documents folder, opened and closed again by every call. Nothing is raised to callers.
class MyDB {
public:
    // The program's shared instance, made on the first call from what the shell gave at start.
    static MyDB& initialize();
    static void setUp(const Paths& paths, Log& log);

    // Makes the working copy when none exists yet, or when an empty file stands in its place.
    MyDB(std::string fileName, const Paths& paths, Log& log);
    MyDB(const MyDB&) = delete;
    MyDB& operator=(const MyDB&) = delete;

    // How long a statement waits for a file that another connection is writing.
    static constexpr int busyTimeoutMilliseconds = 5000;
    // The shared object's file, in the resources and in the documents folder.
    static constexpr std::string_view sharedFileName = "Icons";

    bool isExist() const;
    std::string getDBPath() const;
    bool copyDB();
    int loadDB();

    // Runs the statements of work on one connection in one transaction: all of them stay, or,
    // when work returns false or the process dies half-way, none. False when nothing was kept.
    bool inTransaction(const std::function<bool()>& work);

    // Why the working copy could not be made at start (the copy's error); none when it was.
    const std::error_code& copyError() const { return copyError_; }

    RowSet run(std::string_view sql);
    RowSet Execute(std::string_view sql);
    bool ExecuteNonQuery(std::string_view sql);
    std::optional<std::string> ExecuteScaler(std::string_view sql);
    static std::optional<std::string> getValue(const RowSet& rows, std::size_t rowNumber,
                                               const std::string& coulumnName);

    const std::string& fileName() const { return fileName_; }
    const std::string& dbPath() const { return dbPath_; }
    const std::vector<std::string>& columnList() const { return columnList_; }

private:
    bool open();
    void close();
    bool runOnHeld(const char* statement);
    std::string partialPrefix() const;
    void removeLeftoverCopies() const;

    const Paths& paths_;
    Log& log_;
    std::string fileName_;
    std::string dbPath_;
    sqlite3* database_ = nullptr;
    bool held_ = false;  // a transaction keeps the connection open between calls
    std::error_code copyError_;
    std::vector<std::string> columnList_;
};

}  // namespace kavenda
