// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>

namespace kavenda {

// Tells once when a system tray becomes available after the start (a panel that comes up after
// the autostart). Qt has no signal for it, and looking again and again would wake an idle
// program on every desktop without a tray.
class TrayWatch : public QObject {
    Q_OBJECT

public:
    explicit TrayWatch(QObject* parent = nullptr);

signals:
    // An X11 tray took its selection: a tray icon made now shows there.
    void trayAppeared();
    // A status-notifier host registered on the session bus. Qt decides once per process whether
    // it shows its tray icons there, so only a new start of the program uses it.
    void statusNotifierHostAppeared();

private slots:
    void lookAgain();
    void hostRegistered();
    void watcherRegistered();

private:
    bool told_ = false;
};

}  // namespace kavenda
