// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/NotificationService.h"

#include <chrono>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace kavenda {

// The pending reminders of a running program and the rule that hands each out once. A reminder
// still goes out when the program looks a little late (a busy or just woken machine); one whose
// moment passed more than `latest` ago was slept through and is dropped. A reminder that went
// out is never taken again, even when a rebuild or a clock set back schedules it anew.
class ReminderQueue final : public NotificationService {
public:
    static constexpr std::chrono::minutes latest{15};

    void cancelAll() override;
    void schedule(const NotificationRecord& record) override;
    std::vector<NotificationRecord> pending() const override;

    // Removes every reminder whose moment has come and returns those to fire, earliest first.
    std::vector<NotificationRecord> takeDue(Instant now);
    std::optional<Instant> nextFireDate() const;

private:
    using Key = std::pair<Instant, std::string>;

    std::vector<NotificationRecord> pending_;
    std::set<Key> fired_;
};

}  // namespace kavenda
