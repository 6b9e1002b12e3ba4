// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/Alerts.h"

#include <string>
#include <vector>

namespace kavenda::test {

class RecordingAlerts final : public Alerts {
public:
    void show(const std::string& title, const std::string& message, const std::string& button) override
    {
        messages.push_back(message);
        titles.push_back(title);
        buttons.push_back(button);
    }
    std::vector<std::string> messages;
    std::vector<std::string> titles;
    std::vector<std::string> buttons;
};

}  // namespace kavenda::test
