// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/Instant.h"

#include <map>
#include <string>

namespace kavenda {

// One local notification as it is handed to the platform.
struct NotificationRecord {
    Instant fireDate;
    std::string timeZone;
    std::string alertBody;
    std::string alertAction;
    std::string soundName;
    std::map<std::string, std::string> userInfo;

    bool operator==(const NotificationRecord&) const = default;
};

}  // namespace kavenda
