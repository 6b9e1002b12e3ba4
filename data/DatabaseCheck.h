// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace kavenda {

// Why the program cannot start on its data: one line for the log, one message for a person.
struct StartupProblem {
    std::string logLine;
    std::string message;
};

// The shipped database must open and hold the program's tables, or no working copy is made.
std::optional<StartupProblem> shippedDatabaseProblem(const std::filesystem::path& shipped);
// A working copy without the tables is left as it is: the user decides what becomes of it.
std::optional<StartupProblem> workingCopyProblem(const std::filesystem::path& workingCopy);

}  // namespace kavenda
