// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>
#include <QPointer>

class QAction;
class QSystemTrayIcon;

namespace kavenda {

class Clock;
class NotificationService;
class PersianCalendar;
class ReminderSound;

// What the tray icon tells: the next reminder and the time left in its tooltip, refreshed by
// the owner as each minute begins, and "توقف اذان" in its menu while a call sounds.
class TrayStatus : public QObject {
    Q_OBJECT

public:
    TrayStatus(QSystemTrayIcon* tray, ReminderSound& sound, const NotificationService& notifications,
               const Clock& clock, const PersianCalendar& calendar, QObject* parent = nullptr);

    void refresh();

private:
    QPointer<QSystemTrayIcon> tray_;
    ReminderSound& sound_;
    const NotificationService& notifications_;
    const Clock& clock_;
    const PersianCalendar& calendar_;
    QAction* stop_ = nullptr;
};

}  // namespace kavenda
