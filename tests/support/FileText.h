// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace kavenda::test {

// The bytes of a file as text; empty when it cannot be read.
inline std::string fileText(const std::filesystem::path& file)
{
    std::ifstream in(file, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), {});
}

}  // namespace kavenda::test
