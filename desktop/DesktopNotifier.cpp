// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "desktop/DesktopNotifier.h"

#include "reminders/MyNotification.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QGuiApplication>

namespace kavenda {

namespace {

constexpr int messageMilliseconds = 15'000;
const QString service = QStringLiteral("org.freedesktop.Notifications");
const QString path = QStringLiteral("/org/freedesktop/Notifications");
const QString interface = QStringLiteral("org.freedesktop.Notifications");
const QString stopAction = QStringLiteral("stop");
const QString otherAction = QStringLiteral("act");
constexpr uchar normalUrgency = 1;

}  // namespace

DesktopNotifier::DesktopNotifier(ReminderSound& sound, const Paths& paths, QSystemTrayIcon* tray)
    : sound_(sound), paths_(paths), tray_(tray)
{
}

void DesktopNotifier::setTray(QSystemTrayIcon* tray)
{
    tray_ = tray;
}

void DesktopNotifier::notify(const NotificationRecord& record)
{
    QStringList actions;
    if (MyNotification::isCall(record.alertBody))
        actions << stopAction << QStringLiteral("توقف");
    const int ticket = sound_.current();
    const QString body = QString::fromStdString(record.alertBody);
    send(
        body, actions,
        [this, ticket](uint id) {
            if (ticket != 0)
                soundOf_[id] = ticket;
        },
        [this, body] { showMessage(body); });
}

void DesktopNotifier::notice(const QString& body, const QString& actionLabel, std::function<void()> onAction)
{
    send(
        body, {otherAction, actionLabel}, [this, onAction](uint id) { actionOf_[id] = onAction; },
        [this, body] { showMessage(body); });
}

void DesktopNotifier::send(const QString& body, const QStringList& actions, std::function<void(uint)> shown,
                           std::function<void()> unanswered)
{
    // The bus is joined at the first notification, not at start, where it would delay the window.
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        unanswered();
        return;
    }
    if (!listening_) {
        listening_ = true;
        // Any sender: the server's unique name changes when it is restarted.
        bus.connect(QString(), path, interface, QStringLiteral("ActionInvoked"), this,
                    SLOT(actionInvoked(uint, QString)));
        bus.connect(QString(), path, interface, QStringLiteral("NotificationClosed"), this,
                    SLOT(notificationClosed(uint, uint)));
    }
    const QVariantMap hints{
        {QStringLiteral("desktop-entry"), QStringLiteral("kavenda")},
        {QStringLiteral("urgency"), QVariant::fromValue(normalUrgency)},
        // The program plays the sound itself, at full length.
        {QStringLiteral("suppress-sound"), true},
    };
    QDBusMessage call = QDBusMessage::createMethodCall(service, path, interface, QStringLiteral("Notify"));
    call << QGuiApplication::applicationDisplayName() << uint(0)
         << QString::fromStdString((paths_.resourceFolder() / "kavenda.png").string())
         << QGuiApplication::applicationDisplayName() << body << actions << hints << int(-1);
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [shown = std::move(shown), unanswered = std::move(unanswered)](QDBusPendingCallWatcher* done) {
                done->deleteLater();
                const QDBusPendingReply<uint> reply = *done;
                if (reply.isError())
                    unanswered();
                else
                    shown(reply.value());
            });
}

void DesktopNotifier::actionInvoked(uint id, const QString& action)
{
    if (const auto found = soundOf_.find(id); action == stopAction && found != soundOf_.end())
        sound_.stop(found->second);
    if (const auto found = actionOf_.find(id); action == otherAction && found != actionOf_.end())
        found->second();
}

void DesktopNotifier::notificationClosed(uint id, uint)
{
    soundOf_.erase(id);
    actionOf_.erase(id);
}

void DesktopNotifier::showMessage(const QString& body)
{
    if (tray_ && QSystemTrayIcon::isSystemTrayAvailable() && QSystemTrayIcon::supportsMessages())
        tray_->showMessage(QGuiApplication::applicationDisplayName(), body, tray_->icon(), messageMilliseconds);
}

}  // namespace kavenda
