// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/Paths.h"

#include <utility>

namespace kavenda {

// Folders decided by whoever starts the program: the command line, or a test.
class FixedPaths final : public Paths {
public:
    FixedPaths(std::filesystem::path documents, std::filesystem::path resources)
        : documents_(std::move(documents)), resources_(std::move(resources)) {}
    std::filesystem::path documentsFolder() const override { return documents_; }
    std::filesystem::path resourceFolder() const override { return resources_; }

private:
    std::filesystem::path documents_;
    std::filesystem::path resources_;
};

}  // namespace kavenda
