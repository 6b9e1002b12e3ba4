// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/UrlOpener.h"

#include <string>
#include <vector>

namespace kavenda::test {

class RecordingUrlOpener final : public UrlOpener {
public:
    void open(const std::string& address) override { opened.push_back(address); }
    std::vector<std::string> opened;
};

}  // namespace kavenda::test
