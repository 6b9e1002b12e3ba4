// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/NotificationRecord.h"
#include "platform/Paths.h"
#include "reminders/ReminderSound.h"

#include <QObject>
#include <QPointer>
#include <QSystemTrayIcon>

#include <functional>
#include <map>

namespace kavenda {

// A reminder that comes while the window is not in front: a notification of the desktop's
// notification server (freedesktop, over the session bus), with a stop action for the calls;
// a message from the tray icon where no server answers. The sound is the program's own and
// plays already; the stop action ends it.
class DesktopNotifier : public QObject {
    Q_OBJECT

public:
    DesktopNotifier(ReminderSound& sound, const Paths& paths, QSystemTrayIcon* tray = nullptr);

    void setTray(QSystemTrayIcon* tray);
    void notify(const NotificationRecord& record);
    // A notification of the program's own (not a reminder) with one action.
    void notice(const QString& body, const QString& actionLabel, std::function<void()> onAction);

private slots:
    void actionInvoked(uint id, const QString& action);
    void notificationClosed(uint id, uint reason);

private:
    void send(const QString& body, const QStringList& actions, std::function<void(uint)> shown,
              std::function<void()> unanswered);
    void showMessage(const QString& body);

    ReminderSound& sound_;
    const Paths& paths_;
    QPointer<QSystemTrayIcon> tray_;
    std::map<uint, int> soundOf_;  // notification id, ticket of its sound
    std::map<uint, std::function<void()>> actionOf_;  // notification id, what its action does
    bool listening_ = false;
};

}  // namespace kavenda
