// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "reminders/ReminderQueue.h"

#include <algorithm>

namespace kavenda {

namespace {

// What fired longer ago than this is forgotten; a clock set back further may fire it again.
constexpr std::chrono::hours firedMemory{48};

bool earlier(const NotificationRecord& a, const NotificationRecord& b)
{
    return a.fireDate < b.fireDate;
}

}  // namespace

void ReminderQueue::cancelAll()
{
    pending_.clear();
}

void ReminderQueue::schedule(const NotificationRecord& record)
{
    if (!fired_.contains({record.fireDate, record.alertBody}))
        pending_.push_back(record);
}

std::vector<NotificationRecord> ReminderQueue::pending() const
{
    return pending_;
}

std::vector<NotificationRecord> ReminderQueue::takeDue(Instant now)
{
    const auto notYet = std::stable_partition(pending_.begin(), pending_.end(),
                                              [now](const NotificationRecord& r) { return r.fireDate <= now; });
    std::vector<NotificationRecord> due(pending_.begin(), notYet);
    pending_.erase(pending_.begin(), notYet);
    std::stable_sort(due.begin(), due.end(), earlier);

    std::erase_if(fired_, [now](const Key& key) { return key.first < now - firedMemory; });
    std::vector<NotificationRecord> toFire;
    for (NotificationRecord& record : due) {
        if (record.fireDate < now - latest)
            continue;
        if (fired_.insert({record.fireDate, record.alertBody}).second)
            toFire.push_back(std::move(record));
    }
    return toFire;
}

std::optional<Instant> ReminderQueue::nextFireDate() const
{
    const auto first = std::min_element(pending_.begin(), pending_.end(), earlier);
    if (first == pending_.end())
        return std::nullopt;
    return first->fireDate;
}

}  // namespace kavenda
