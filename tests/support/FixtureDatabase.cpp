// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/FixtureDatabase.h"

#include <sqlite3.h>

#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>

namespace kavenda::test {

namespace {

std::string readFile(const std::filesystem::path& file)
{
    std::ifstream in(file);
    if (!in)
        throw std::runtime_error("cannot read " + file.string());
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

}  // namespace

void execSql(const std::filesystem::path& file, std::string_view sql)
{
    sqlite3* db = nullptr;
    if (sqlite3_open(file.c_str(), &db) != SQLITE_OK) {
        sqlite3_close(db);
        throw std::runtime_error("cannot open " + file.string());
    }
    char* error = nullptr;
    const std::string text(sql);
    const int result = sqlite3_exec(db, text.c_str(), nullptr, nullptr, &error);
    const std::string message = error ? error : "";
    sqlite3_free(error);
    sqlite3_close(db);
    if (result != SQLITE_OK)
        throw std::runtime_error("SQL failed on " + file.string() + ": " + message);
}

std::filesystem::path buildFixtureDatabase(const std::filesystem::path& folder,
                                           std::initializer_list<std::string_view> dataFiles)
{
    std::filesystem::create_directories(folder);
    const auto file = folder / "Icons";
    std::filesystem::remove(file);
    std::string sql = "BEGIN;" + readFile(std::filesystem::path(KAVENDA_SOURCE_DIR) / "resources/data/schema.sql");
    for (std::string_view name : dataFiles)
        sql += readFile(std::filesystem::path(KAVENDA_SOURCE_DIR) / "tests/fixtures" / name);
    execSql(file, sql + "COMMIT;");
    return file;
}

}  // namespace kavenda::test
