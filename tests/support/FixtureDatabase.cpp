// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/FixtureDatabase.h"

#include "tests/support/FileText.h"

#include <sqlite3.h>

#include <stdexcept>
#include <string>

namespace kavenda::test {

void execSql(const std::filesystem::path& file, std::string_view sql)
{
    sqlite3* db = nullptr;
    sqlite3_open(file.c_str(), &db);  // a file that cannot be opened fails the statement
    const int result = sqlite3_exec(db, std::string(sql).c_str(), nullptr, nullptr, nullptr);
    const std::string message = sqlite3_errmsg(db);
    sqlite3_close(db);
    if (result != SQLITE_OK)
        throw std::runtime_error("SQL failed on " + file.string() + ": " + message);
}

std::filesystem::path buildFixtureDatabase(const std::filesystem::path& folder,
                                           std::initializer_list<std::string_view> dataFiles)
{
    const std::filesystem::path source(KAVENDA_SOURCE_DIR);
    std::filesystem::create_directories(folder);
    const auto file = folder / "Icons";
    std::filesystem::remove(file);
    std::string sql = "BEGIN;" + fileText(source / "resources/data/schema.sql");
    for (std::string_view name : dataFiles)
        sql += fileText(source / "tests/fixtures" / name);
    execSql(file, sql + "COMMIT;");
    return file;
}

}  // namespace kavenda::test
