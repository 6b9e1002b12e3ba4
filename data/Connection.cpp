// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "data/Connection.h"

#include "data/MyDB.h"

#include <sqlite3.h>

#include <stdexcept>

namespace kavenda {

Connection::Connection(const std::filesystem::path& file)
{
    if (sqlite3_open_v2(file.c_str(), &db_, SQLITE_OPEN_READWRITE, nullptr) != SQLITE_OK) {
        const std::string message = sqlite3_errmsg(db_);
        sqlite3_close(db_);
        throw std::runtime_error(file.string() + ": " + message);
    }
    sqlite3_busy_timeout(db_, MyDB::busyTimeoutMilliseconds);
}

Connection::~Connection()
{
    sqlite3_close(db_);
}

void Connection::fail(const std::string& what) const
{
    throw std::runtime_error(what + ": " + sqlite3_errmsg(db_));
}

void Connection::exec(const std::string& sql)
{
    if (sqlite3_exec(db_, sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
        fail(sql.substr(0, sql.find('\n')));
}

std::optional<long long> Connection::integer(const std::string& sql)
{
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(db_, sql.c_str(), -1, &statement, nullptr) != SQLITE_OK)
        fail(sql);
    std::optional<long long> value;
    const int step = sqlite3_step(statement);
    if (step == SQLITE_ROW && sqlite3_column_type(statement, 0) != SQLITE_NULL)
        value = sqlite3_column_int64(statement, 0);
    sqlite3_finalize(statement);
    if (step != SQLITE_ROW && step != SQLITE_DONE)
        fail(sql);
    return value;
}

Connection::Statement::Statement(Connection& connection, const char* sql) : connection_(connection)
{
    if (sqlite3_prepare_v2(connection_.db_, sql, -1, &statement_, nullptr) != SQLITE_OK)
        connection_.fail(sql);
}

Connection::Statement::~Statement()
{
    sqlite3_finalize(statement_);
}

Connection::Statement& Connection::Statement::bind(int index, long long value)
{
    sqlite3_bind_int64(statement_, index, value);
    return *this;
}

Connection::Statement& Connection::Statement::bind(int index, const std::string& value)
{
    sqlite3_bind_text(statement_, index, value.data(), static_cast<int>(value.size()), SQLITE_TRANSIENT);
    return *this;
}

Connection::Statement& Connection::Statement::bind(int index, const std::optional<std::string>& value)
{
    if (value)
        return bind(index, *value);
    sqlite3_bind_null(statement_, index);
    return *this;
}

void Connection::Statement::run()
{
    const int result = sqlite3_step(statement_);
    sqlite3_reset(statement_);
    if (result != SQLITE_DONE)
        connection_.fail(sqlite3_sql(statement_));
}

}  // namespace kavenda
