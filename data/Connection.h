// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <filesystem>
#include <optional>
#include <string>

struct sqlite3;
struct sqlite3_stmt;

namespace kavenda {

// One connection held open for a run of writes that belong together, for the writers that
// are not screens: the database generator and the yearly top-up. Failures throw.
class Connection {
public:
    // Waits for a busy file as long as MyDB's connections do.
    explicit Connection(const std::filesystem::path& file);
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    void exec(const std::string& sql);
    // The first column of the first row as an integer; none for no row or NULL.
    std::optional<long long> integer(const std::string& sql);

    // A prepared statement, run once per set of values.
    class Statement {
    public:
        Statement(Connection& connection, const char* sql);
        ~Statement();
        Statement(const Statement&) = delete;
        Statement& operator=(const Statement&) = delete;

        Statement& bind(int index, long long value);
        Statement& bind(int index, const std::string& value);
        Statement& bind(int index, const std::optional<std::string>& value);  // NULL for none
        void run();

    private:
        Connection& connection_;
        sqlite3_stmt* statement_ = nullptr;
    };

private:
    [[noreturn]] void fail(const std::string& what) const;

    sqlite3* db_ = nullptr;
};

}  // namespace kavenda
