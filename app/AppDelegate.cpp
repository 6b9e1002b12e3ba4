// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/AppDelegate.h"

#include "app/AppTexts.h"
#include "data/MyDB.h"
#include "desktop/TrayWatch.h"
#include "platform/Alerts.h"
#include "platform/Log.h"
#include "platform/Screen.h"
#include "reminders/MyNotification.h"
#include "screens/main/MainViewController.h"
#include "text/Format.h"
#include "widgets/PresentationStack.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QIcon>
#include <QImageReader>
#include <QMenu>
#include <QShortcut>
#include <QSystemTrayIcon>
#include <QVBoxLayout>
#include <QWindowStateChangeEvent>

namespace kavenda {

namespace {

// The phone's status bar takes this much of the screen's height.
constexpr int statusBarHeight = 20;
constexpr int screenWidth = 320;

}  // namespace

AppDelegate::AppDelegate(const AppServices& services, DesktopNotify desktopNotify, QObject* parent)
    : QObject(parent), services_(services), desktopNotify_(std::move(desktopNotify))
{
    connect(qApp, &QCoreApplication::aboutToQuit, this, &AppDelegate::applicationWillTerminate);
}

AppDelegate::~AppDelegate() = default;

bool AppDelegate::didFinishLaunchingWithOptions()
{
    window_ = std::make_unique<QWidget>();
    window_->setWindowTitle(QApplication::applicationDisplayName());
    window_->setFixedSize(screenWidth, services_.screen->boundsHeight() - statusBarHeight);
    auto* layout = new QVBoxLayout(window_.get());
    layout->setContentsMargins(0, 0, 0, 0);
    presentation_ = new PresentationStack(window_.get());
    layout->addWidget(presentation_);

    try {
        MyDB::initialize();
    } catch (...) {
        services_.log->line("asdasd");
    }
    // The reminders' rebuild shows nowhere in the first frame: it follows the frame.
    if (startsInBackground_)
        MyNotification::initialize().update();
    else
        launchAfterFirstFrame_ = true;

    root_ = new MainViewController({MyDB::initialize(), *services_.clock, *services_.calendar, *services_.screen,
                                    *services_.paths, [] { MyNotification::initialize().update(); }, services_.log,
                                    services_.audio, services_.isPlayable, services_.alerts, services_.urls},
                                   *presentation_);
    presentation_->setRoot(root_);
    window_->installEventFilter(this);
    connect(new QShortcut(QKeySequence::Quit, window_.get()), &QShortcut::activated, this, &AppDelegate::quit);
    // The program ends by quit() alone (see there).
    QApplication::setQuitOnLastWindowClosed(false);
    // Without a tray the reminders still come as desktop notifications; a second start from the
    // menu shows the window.
    if (startsInBackground_) {
        setUpTray();
        inBackground_ = true;
        QMetaObject::invokeMethod(this, &AppDelegate::launchFinished, Qt::QueuedConnection);
    } else {
        showWindow();
    }
    return true;
}

MainViewController* AppDelegate::rootViewController() const
{
    return root_;
}

void AppDelegate::applicationWillEnterForeground()
{
    MyNotification::initialize().update();
    const QString className = QString::fromLatin1(root_->metaObject()->className()).section(QStringLiteral("::"), -1);
    services_.log->line(format("%@", {className.toStdString()}));
    root_->refresh();
}

void AppDelegate::applicationDidBecomeActive()
{
    root_->refresh();
}

void AppDelegate::didReceiveLocalNotification(const NotificationRecord& notification)
{
    if (active_)
        services_.alerts->show("", notification.alertBody, "Ok");
    else
        desktopNotify_(notification);
}

// Nothing to keep: every statement closes the database behind it.
void AppDelegate::applicationDidEnterBackground()
{
}
void AppDelegate::applicationWillTerminate()
{
}

void AppDelegate::setIconFile(const QString& file)
{
    iconFile_ = file;
}

// The icon costs a decode of its largest image and the image plugins' loading: never before the
// first frame.
void AppDelegate::applyIcon()
{
    if (iconApplied_ || iconFile_.isEmpty())
        return;
    iconApplied_ = true;
    QIcon icon;
    icon.addFile(iconFile_, QImageReader(iconFile_, "png").size());
    QApplication::setWindowIcon(icon);
}

void AppDelegate::afterFirstFrame()
{
    const bool launching = launchAfterFirstFrame_;
    launchAfterFirstFrame_ = false;
    if (launching)
        MyNotification::initialize().update();
    applyIcon();
    if (launching)
        setUpTray();
    if (activeAfterFirstFrame_) {
        activeAfterFirstFrame_ = false;
        if (!inBackground_)
            applicationDidBecomeActive();
    }
    if (launching)
        emit launchFinished();
}

// Asking for the tray (a round trip to the X server or the session bus) and decoding its icon
// follow the first frame when there is one.
void AppDelegate::setUpTray()
{
    if (QSystemTrayIcon::isSystemTrayAvailable()) {
        makeTray();
        emit trayAppeared();
        return;
    }
    // A panel started after the program.
    auto* watch = new TrayWatch(this);
    connect(watch, &TrayWatch::trayAppeared, this, [this] {
        makeTray();
        emit trayAppeared();
    });
    connect(watch, &TrayWatch::statusNotifierHostAppeared, this, [this] {
        restartWanted_ = true;
        if (!window_->isVisible())
            restartForTray();
    });
}

void AppDelegate::makeTray()
{
    applyIcon();
    tray_ = new QSystemTrayIcon(QApplication::windowIcon(), this);
    tray_->setToolTip(QApplication::applicationDisplayName());
    auto* menu = new QMenu(window_.get());
    menu->setLayoutDirection(Qt::RightToLeft);
    connect(menu->addAction(texts::app::show), &QAction::triggered, this, &AppDelegate::showWindow);
    connect(menu->addAction(texts::app::quit), &QAction::triggered, this, &AppDelegate::quit);
    tray_->setContextMenu(menu);
    connect(tray_, &QSystemTrayIcon::activated, this, [this](QSystemTrayIcon::ActivationReason reason) {
        if (reason == QSystemTrayIcon::Trigger)
            showWindow();
    });
    tray_->show();
}

void AppDelegate::restartForTray()
{
    restartsForTray_ = true;
    quit();
}

void AppDelegate::quit()
{
    quitting_ = true;
    emit quitRequested();
    QCoreApplication::quit();
}

// Without a tray the closed window keeps the reminders going while any is on, and says so the
// first time; with none on there is nothing to wait for. True when the window only hides.
bool AppDelegate::closeWithoutTray()
{
    if (!MyNotification::initialize().anyReminderOn()) {
        quit();
        return false;
    }
    window_->hide();
    if (restartWanted_) {
        restartForTray();
        return true;
    }
    if (!toldInBackground_ && tellInBackground_) {
        toldInBackground_ = true;
        tellInBackground_([this] { quit(); });
    }
    return true;
}

void AppDelegate::showWindow()
{
    window_->showNormal();
    window_->raise();
    window_->activateWindow();
}

void AppDelegate::enterBackground()
{
    if (inBackground_)
        return;
    inBackground_ = true;
    applicationDidEnterBackground();
}

// The window shown at launch, or shown again from the tray or a minimise. Becoming active
// follows once the show is done, as a phone delivers it after the launch or the return.
void AppDelegate::enterForeground()
{
    if (!window_->isVisible() || (!inBackground_ && launched_))
        return;
    if (inBackground_)
        applicationWillEnterForeground();
    inBackground_ = false;
    launched_ = true;
    // The first frame shows what this refresh would draw again: it follows the frame.
    if (!firstFrameSeen_) {
        activeAfterFirstFrame_ = true;
        return;
    }
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (!inBackground_)
                applicationDidBecomeActive();
        },
        Qt::QueuedConnection);
}

bool AppDelegate::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != window_.get())
        return QObject::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::UpdateRequest:
        // The first frame is being painted; what it does not show follows it.
        if (!firstFrameSeen_) {
            firstFrameSeen_ = true;
            QMetaObject::invokeMethod(this, &AppDelegate::afterFirstFrame, Qt::QueuedConnection);
        }
        break;
    case QEvent::Close:
        if (quitting_)
            break;
        if (tray_) {
            event->ignore();
            window_->hide();
            return true;
        }
        if (closeWithoutTray()) {
            event->ignore();
            return true;
        }
        break;
    case QEvent::Hide:
        active_ = false;
        enterBackground();
        break;
    case QEvent::Show:
        if (!window_->isMinimized())
            enterForeground();
        break;
    case QEvent::WindowStateChange:
        if (window_->isMinimized())
            enterBackground();
        else
            enterForeground();
        break;
    // A focus change is no life event: it only decides how a reminder shows.
    case QEvent::WindowActivate:
        active_ = true;
        break;
    case QEvent::WindowDeactivate:
        active_ = false;
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

}  // namespace kavenda
