// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "app/AppServices.h"
#include "platform/NotificationRecord.h"

#include <QObject>

#include <functional>
#include <memory>

class QSystemTrayIcon;
class QWidget;

namespace kavenda {

class MainViewController;
class PresentationStack;

// The shell: makes the window and its root screen, and turns the desktop's events into the
// application's life events: a window shown again after the tray or a minimise enters the
// foreground and then becomes active (the first show only becomes active), a window hidden or
// minimised enters the background, and quitting terminates. Focus changes are no life events.
class AppDelegate : public QObject {
    Q_OBJECT

public:
    // Shows a notification on the desktop while the window is not active.
    using DesktopNotify = std::function<void(const NotificationRecord&)>;

    // The shared database and scheduler are made from the same services.
    AppDelegate(const AppServices& services, DesktopNotify desktopNotify, QObject* parent = nullptr);
    ~AppDelegate() override;

    bool didFinishLaunchingWithOptions();
    void applicationWillEnterForeground();
    void applicationDidBecomeActive();
    void didReceiveLocalNotification(const NotificationRecord& notification);
    void applicationDidEnterBackground();
    void applicationWillTerminate();

    // A start in the background shows no window until it is asked for, tray or none.
    void setStartsInBackground(bool background) { startsInBackground_ = background; }
    // Without a tray, what tells the person once that the closed window still announces; its
    // argument ends the program.
    void setTellRunsInBackground(std::function<void(std::function<void()>)> tell)
    {
        tellInBackground_ = std::move(tell);
    }
    void showWindow();
    // The window's and the tray's icon, set once the first frame is painted (or when a tray is
    // made without a window).
    void setIconFile(const QString& file);
    // The one way out of the program: the tray's exit, Ctrl+Q, the background notice's exit,
    // kavenda --quit, and without a tray the last close while no reminder is on.
    void quit();
    // The program ended to start again in the background, where Qt shows its icon in the tray
    // that came up after the start (a status-notifier one, which Qt takes only at start).
    bool restartsForTray() const { return restartsForTray_; }

    QWidget* window() const { return window_.get(); }
    MainViewController* rootViewController() const;
    // Where the desktop has a tray, closing the window only hides it there; else null, until a
    // tray appears (a panel that starts after the program). Null until the first frame too.
    QSystemTrayIcon* tray() const { return tray_; }

signals:
    void trayAppeared();
    // The launch's own work is done: after the first frame, or at once for a start in the
    // background. Work nobody waits for starts then.
    void launchFinished();
    // The program is about to end: by the tray, the background notice, --quit or a last close.
    void quitRequested();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void setUpTray();
    void makeTray();
    void restartForTray();
    void applyIcon();
    void afterFirstFrame();
    bool closeWithoutTray();
    void enterBackground();
    void enterForeground();

    AppServices services_;
    DesktopNotify desktopNotify_;
    std::unique_ptr<QWidget> window_;
    PresentationStack* presentation_ = nullptr;
    MainViewController* root_ = nullptr;
    QSystemTrayIcon* tray_ = nullptr;
    bool inBackground_ = false;
    bool launched_ = false;
    bool active_ = false;
    bool quitting_ = false;
    bool startsInBackground_ = false;
    bool toldInBackground_ = false;
    bool restartWanted_ = false;
    bool firstFrameSeen_ = false;
    bool launchAfterFirstFrame_ = false;
    bool activeAfterFirstFrame_ = false;
    bool iconApplied_ = false;
    QString iconFile_;
    bool restartsForTray_ = false;
    std::function<void(std::function<void()>)> tellInBackground_;
};

}  // namespace kavenda
