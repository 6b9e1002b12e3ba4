// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/Alerts.h"

#include <string>
#include <vector>

namespace kavenda::test {

class RecordingAlerts final : public Alerts {
public:
    void show(const std::string&, const std::string& message, const std::string&) override
    {
        messages.push_back(message);
    }
    std::vector<std::string> messages;
};

}  // namespace kavenda::test
