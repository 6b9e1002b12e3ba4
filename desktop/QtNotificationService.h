// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/Clock.h"
#include "platform/NotificationService.h"
#include "reminders/ReminderQueue.h"

#include <QObject>
#include <QTimer>

#include <functional>
#include <optional>

namespace kavenda {

// Keeps the pending records and hands each to the delivery hook at its moment, by the rules of
// ReminderQueue (a little late still fires, slept through is dropped, nothing fires twice).
// "Now" comes from the clock it is given, which must run on (a ShiftedClock under --now); the
// timer only says when to look again, so a late wake-up or a changed system clock is noticed.
class QtNotificationService : public QObject, public NotificationService {
    Q_OBJECT

public:
    using Delivery = std::function<void(const NotificationRecord&)>;

    explicit QtNotificationService(const Clock& clock, QObject* parent = nullptr);

    void cancelAll() override;
    void schedule(const NotificationRecord& record) override;
    std::vector<NotificationRecord> pending() const override;

    void setDelivery(Delivery delivery);
    // Delivers every record whose moment has come, earliest first, and sets the timer anew.
    void deliverDue();
    std::optional<Instant> nextFireDate() const;

private:
    void rearm();

    const Clock& clock_;
    ReminderQueue queue_;
    Delivery delivery_;
    QTimer timer_;
};

}  // namespace kavenda
