// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "desktop/QtNotificationService.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace kavenda {

namespace {

// Looking again at least this often keeps the service right across suspend and clock changes.
constexpr std::chrono::milliseconds longestWait{60'000};

}  // namespace

QtNotificationService::QtNotificationService(const Clock& clock, QObject* parent) : QObject(parent), clock_(clock)
{
    timer_.setSingleShot(true);
    timer_.setTimerType(Qt::PreciseTimer);
    connect(&timer_, &QTimer::timeout, this, &QtNotificationService::deliverDue);
}

void QtNotificationService::cancelAll()
{
    queue_.cancelAll();
    rearm();
}

void QtNotificationService::schedule(const NotificationRecord& record)
{
    queue_.schedule(record);
    rearm();
}

std::vector<NotificationRecord> QtNotificationService::pending() const
{
    return queue_.pending();
}

void QtNotificationService::setDelivery(Delivery delivery)
{
    delivery_ = std::move(delivery);
}

void QtNotificationService::deliverDue()
{
    // The hook may schedule or cancel; the timer is set once it has seen every due record.
    for (const NotificationRecord& record : queue_.takeDue(clock_.now()))
        if (delivery_)
            delivery_(record);
    rearm();
}

std::optional<Instant> QtNotificationService::nextFireDate() const
{
    return queue_.nextFireDate();
}

void QtNotificationService::rearm()
{
    const std::optional<Instant> next = nextFireDate();
    if (!next) {
        timer_.stop();
        return;
    }
    const auto wait = std::clamp(std::chrono::duration_cast<std::chrono::milliseconds>(*next - clock_.now()),
                                 std::chrono::milliseconds{0}, longestWait);
    timer_.start(wait);
}

}  // namespace kavenda
