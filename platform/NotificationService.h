// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/NotificationRecord.h"

#include <vector>

namespace kavenda {

// The platform's local notifications of this program.
class NotificationService {
public:
    virtual ~NotificationService() = default;
    virtual void cancelAll() = 0;
    virtual void schedule(const NotificationRecord& record) = 0;
    // Pending records in the order they were scheduled.
    virtual std::vector<NotificationRecord> pending() const = 0;
};

}  // namespace kavenda
