// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <filesystem>

namespace kavenda {

class Paths {
public:
    virtual ~Paths() = default;
    // The user's writable folder that holds the working copy of the database.
    virtual std::filesystem::path documentsFolder() const = 0;
    // The read-only folder of the program's own resources.
    virtual std::filesystem::path resourceFolder() const = 0;
};

}  // namespace kavenda
