// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "data/DatabaseCheck.h"

#include <filesystem>
#include <optional>
#include <system_error>

namespace kavenda {

// Makes the data folder when it is missing; why it cannot hold the working copy otherwise: no
// folder at all (HOME unset: an empty path), a file where the folder should be, a read-only
// folder or disk.
std::optional<StartupProblem> dataFolderProblem(const std::filesystem::path& folder);
// The working copy could not be made in the folder: the message names the cause.
StartupProblem copyProblem(const std::filesystem::path& folder, std::error_code cause);

}  // namespace kavenda
