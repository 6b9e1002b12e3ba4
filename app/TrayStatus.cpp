// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/TrayStatus.h"

#include "app/AppTexts.h"
#include "platform/Clock.h"
#include "platform/NotificationService.h"
#include "reminders/NextReminderText.h"
#include "reminders/ReminderSound.h"

#include <QAction>
#include <QGuiApplication>
#include <QMenu>
#include <QSystemTrayIcon>

namespace kavenda {

TrayStatus::TrayStatus(QSystemTrayIcon* tray, ReminderSound& sound, const NotificationService& notifications,
                       const Clock& clock, const PersianCalendar& calendar, QObject* parent)
    : QObject(parent), tray_(tray), sound_(sound), notifications_(notifications), clock_(clock), calendar_(calendar)
{
    if (QMenu* menu = tray_ ? tray_->contextMenu() : nullptr) {
        stop_ = new QAction(texts::app::stopCall, menu);
        stop_->setVisible(false);
        menu->insertAction(menu->actions().value(0), stop_);
        connect(stop_, &QAction::triggered, this, [this] {
            sound_.stop();
            refresh();
        });
        connect(menu, &QMenu::aboutToShow, this, &TrayStatus::refresh);
    }
    refresh();
}

void TrayStatus::refresh()
{
    if (!tray_)
        return;
    const Instant now = clock_.now();
    const std::string next = nextReminderText(notifications_.pending(), now, calendar_);
    tray_->setToolTip(next.empty() ? QGuiApplication::applicationDisplayName() : QString::fromStdString(next));
    if (stop_)
        stop_->setVisible(sound_.isPlaying());
}

}  // namespace kavenda
