// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/TempFolder.h"

#include <cstdlib>
#include <string>

namespace kavenda::test {

TempFolder::TempFolder()
{
    std::string pattern = (std::filesystem::temp_directory_path() / "kavenda-XXXXXX").string();
    if (::mkdtemp(pattern.data()) == nullptr)
        throw std::filesystem::filesystem_error("mkdtemp", std::error_code(errno, std::generic_category()));
    path_ = pattern;
}

TempFolder::~TempFolder()
{
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

}  // namespace kavenda::test
