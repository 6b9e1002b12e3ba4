// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <string>

namespace kavenda::test {

// A fresh folder under the system's temporary folder, removed with its contents at the end.
class TempFolder {
public:
    TempFolder() : path_(made()) {}
    ~TempFolder() { std::filesystem::remove_all(path_, ignored_); }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    const std::filesystem::path& path() const { return path_; }

private:
    static std::filesystem::path made()
    {
        std::string pattern = (std::filesystem::temp_directory_path() / "kavenda-XXXXXX").string();
        if (::mkdtemp(pattern.data()) == nullptr)
            throw std::filesystem::filesystem_error("mkdtemp", std::error_code(errno, std::generic_category()));
        return pattern;
    }
    std::filesystem::path path_;
    std::error_code ignored_;
};

}  // namespace kavenda::test
