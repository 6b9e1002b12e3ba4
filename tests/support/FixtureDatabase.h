// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <filesystem>
#include <string_view>

namespace kavenda::test {

// Writes a database file from the shipped schema and the given SQL files (relative to
// tests/fixtures), as the resource "Icons" of a resource folder.
std::filesystem::path buildFixtureDatabase(const std::filesystem::path& folder,
                                           std::initializer_list<std::string_view> dataFiles = {"fixture-data.sql"});

// Runs SQL text on a database file directly, bypassing MyDB; throws on error.
void execSql(const std::filesystem::path& file, std::string_view sql);

}  // namespace kavenda::test
