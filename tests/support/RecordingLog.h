// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/Log.h"

#include <string>
#include <vector>

namespace kavenda::test {

class RecordingLog final : public Log {
public:
    void line(const std::string& text) override { lines.push_back(text); }
    std::vector<std::string> lines;
};

}  // namespace kavenda::test
