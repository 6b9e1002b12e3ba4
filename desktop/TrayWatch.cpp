// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "desktop/TrayWatch.h"

#include <QDBusConnection>
#include <QDBusInterface>
#include <QDBusServiceWatcher>
#include <QGuiApplication>
#include <QSystemTrayIcon>
#include <qpa/qplatformnativeinterface.h>

namespace kavenda {

namespace {

const QString watcherService = QStringLiteral("org.kde.StatusNotifierWatcher");
const QString watcherPath = QStringLiteral("/StatusNotifierWatcher");

}  // namespace

TrayWatch::TrayWatch(QObject* parent) : QObject(parent)
{
    // The X11 platform follows the owner of the tray selection and says when it changes.
    QPlatformNativeInterface* native = QGuiApplication::platformNativeInterface();
    if (native && native->metaObject()->indexOfSignal("systemTrayWindowChanged(QScreen*)") >= 0)
        connect(native, SIGNAL(systemTrayWindowChanged(QScreen*)), this, SLOT(lookAgain()));
    // A panel that hosts status notifiers starts the watcher, then registers with it as a host.
    QDBusConnection bus = QDBusConnection::sessionBus();
    auto* watcher = new QDBusServiceWatcher(watcherService, bus, QDBusServiceWatcher::WatchForRegistration, this);
    connect(watcher, &QDBusServiceWatcher::serviceRegistered, this, &TrayWatch::watcherRegistered);
    bus.connect(watcherService, watcherPath, watcherService, QStringLiteral("StatusNotifierHostRegistered"), this,
                SLOT(hostRegistered()));
}

void TrayWatch::lookAgain()
{
    if (told_ || !QSystemTrayIcon::isSystemTrayAvailable())
        return;
    told_ = true;
    emit trayAppeared();
}

void TrayWatch::hostRegistered()
{
    if (told_)
        return;
    told_ = true;
    emit statusNotifierHostAppeared();
}

// A watcher that comes with its host already registered sends no signal for it.
void TrayWatch::watcherRegistered()
{
    QDBusInterface watcher(watcherService, watcherPath, watcherService);
    if (watcher.property("IsStatusNotifierHostRegistered").toBool())
        hostRegistered();
}

}  // namespace kavenda
