// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/FixtureDatabase.h"

#include "tests/support/FileText.h"

#include <sqlite3.h>

#include <stdexcept>
#include <string>

namespace kavenda::test {

namespace fs = std::filesystem;

void execSql(const fs::path& file, std::string_view sql)
{
    sqlite3* db = nullptr;
    char* error = nullptr;
    sqlite3_open(file.c_str(), &db);  // a file that cannot be opened fails the statement
    const int result = sqlite3_exec(db, std::string(sql).c_str(), nullptr, nullptr, &error);
    const std::string message = error ? error : sqlite3_errmsg(db);
    sqlite3_free(error);
    sqlite3_close(db);
    if (result != SQLITE_OK)
        throw std::runtime_error("SQL failed on " + file.string() + ": " + message);
}

fs::path buildFixtureDatabase(const fs::path& folder, std::initializer_list<std::string_view> dataFiles)
{
    const fs::path source(KAVENDA_SOURCE_DIR);
    fs::create_directories(folder);
    const auto file = folder / "Icons";
    fs::remove(file);
    std::string sql = "BEGIN;" + fileText(source / "resources/data/schema.sql");
    for (std::string_view name : dataFiles)
        sql += fileText(source / "tests/fixtures" / name);
    execSql(file, sql + "COMMIT;");
    return file;
}

}  // namespace kavenda::test
