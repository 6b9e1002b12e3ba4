#include "platform/qt/QtNotificationService.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace kavenda {

namespace {

// Looking again at least this often keeps the service right across suspend and clock changes.
constexpr std::chrono::milliseconds kLongestWait{60'000};

}  // namespace

QtNotificationService::QtNotificationService(const Clock& clock, QObject* parent)
    : QObject(parent), clock_(clock) {
    timer_.setSingleShot(true);
    timer_.setTimerType(Qt::PreciseTimer);
    connect(&timer_, &QTimer::timeout, this, &QtNotificationService::deliverDue);
}

void QtNotificationService::cancelAll() {
    pending_.clear();
    rearm();
}

void QtNotificationService::schedule(const NotificationRecord& record) {
    pending_.push_back(record);
    rearm();
}

std::vector<NotificationRecord> QtNotificationService::pending() const { return pending_; }

void QtNotificationService::setDelivery(Delivery delivery) { delivery_ = std::move(delivery); }

void QtNotificationService::deliverDue() {
    const Instant now = clock_.now();
    const auto notYet = std::stable_partition(pending_.begin(), pending_.end(),
                                              [now](const NotificationRecord& r) { return r.fireDate <= now; });
    std::vector<NotificationRecord> due(pending_.begin(), notYet);
    pending_.erase(pending_.begin(), notYet);
    std::stable_sort(due.begin(), due.end(),
                     [](const NotificationRecord& a, const NotificationRecord& b) { return a.fireDate < b.fireDate; });
    // The hook may schedule or cancel; the timer is set once it has seen every due record.
    for (const NotificationRecord& record : due)
        if (delivery_)
            delivery_(record);
    rearm();
}

std::optional<Instant> QtNotificationService::nextFireDate() const {
    const auto earliest = std::min_element(pending_.begin(), pending_.end(),
        [](const NotificationRecord& a, const NotificationRecord& b) { return a.fireDate < b.fireDate; });
    if (earliest == pending_.end())
        return std::nullopt;
    return earliest->fireDate;
}

void QtNotificationService::rearm() {
    const std::optional<Instant> next = nextFireDate();
    if (!next) {
        timer_.stop();
        return;
    }
    const auto wait = std::clamp(std::chrono::duration_cast<std::chrono::milliseconds>(*next - clock_.now()),
                                 std::chrono::milliseconds{0}, kLongestWait);
    timer_.start(wait);
}

}  // namespace kavenda
