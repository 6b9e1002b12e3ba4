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
constexpr uchar normalUrgency = 1;

}  // namespace

DesktopNotifier::DesktopNotifier(ReminderSound& sound, const Paths& paths, QSystemTrayIcon* tray)
    : sound_(sound), paths_(paths), tray_(tray)
{
    // Any sender: the server's unique name changes when it is restarted.
    QDBusConnection bus = QDBusConnection::sessionBus();
    bus.connect(QString(), path, interface, QStringLiteral("ActionInvoked"), this, SLOT(actionInvoked(uint, QString)));
    bus.connect(QString(), path, interface, QStringLiteral("NotificationClosed"), this,
                SLOT(notificationClosed(uint, uint)));
}

void DesktopNotifier::setTray(QSystemTrayIcon* tray)
{
    tray_ = tray;
}

void DesktopNotifier::notify(const NotificationRecord& record)
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        showMessage(record);
        return;
    }
    QStringList actions;
    if (MyNotification::isCall(record.alertBody))
        actions << stopAction << QStringLiteral("توقف");
    const QVariantMap hints{
        {QStringLiteral("desktop-entry"), QStringLiteral("kavenda")},
        {QStringLiteral("urgency"), QVariant::fromValue(normalUrgency)},
        // The program plays the sound itself, at full length.
        {QStringLiteral("suppress-sound"), true},
    };
    QDBusMessage call = QDBusMessage::createMethodCall(service, path, interface, QStringLiteral("Notify"));
    call << QGuiApplication::applicationDisplayName() << uint(0)
         << QString::fromStdString((paths_.resourceFolder() / "kavenda.png").string())
         << QGuiApplication::applicationDisplayName() << QString::fromStdString(record.alertBody) << actions << hints
         << int(-1);
    const int ticket = sound_.current();
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, record, ticket](QDBusPendingCallWatcher* done) {
        done->deleteLater();
        const QDBusPendingReply<uint> reply = *done;
        if (reply.isError()) {
            showMessage(record);
            return;
        }
        if (ticket != 0)
            soundOf_[reply.value()] = ticket;
    });
}

void DesktopNotifier::actionInvoked(uint id, const QString& action)
{
    const auto found = soundOf_.find(id);
    if (action == stopAction && found != soundOf_.end())
        sound_.stop(found->second);
}

void DesktopNotifier::notificationClosed(uint id, uint)
{
    soundOf_.erase(id);
}

void DesktopNotifier::showMessage(const NotificationRecord& record)
{
    if (tray_ && QSystemTrayIcon::isSystemTrayAvailable() && QSystemTrayIcon::supportsMessages())
        tray_->showMessage(QGuiApplication::applicationDisplayName(), QString::fromStdString(record.alertBody),
                           tray_->icon(), messageMilliseconds);
}

}  // namespace kavenda
