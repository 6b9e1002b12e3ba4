// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/NotificationService.h"

namespace kavenda::test {

class RecordingNotificationService final : public NotificationService {
public:
    void cancelAll() override
    {
        records.clear();
        ++cancelCalls;
    }
    void schedule(const NotificationRecord& record) override { records.push_back(record); }
    std::vector<NotificationRecord> pending() const override { return records; }

    std::vector<NotificationRecord> records;
    int cancelCalls = 0;
};

}  // namespace kavenda::test
