#include "platform/qt/DesktopNotifier.h"

#include "platform/SoundFiles.h"

#include <QGuiApplication>

namespace kavenda {

namespace {

constexpr int kMessageMilliseconds = 15'000;

}  // namespace

DesktopNotifier::DesktopNotifier(AudioPlayer& audio, const Paths& paths, QSystemTrayIcon* tray)
    : audio_(audio), paths_(paths), tray_(tray) {}

void DesktopNotifier::setTray(QSystemTrayIcon* tray) { tray_ = tray; }

void DesktopNotifier::notify(const NotificationRecord& record) {
    if (tray_ && QSystemTrayIcon::isSystemTrayAvailable() && QSystemTrayIcon::supportsMessages())
        tray_->showMessage(QGuiApplication::applicationDisplayName(), QString::fromStdString(record.alertBody),
                           tray_->icon(), kMessageMilliseconds);
    if (!record.soundName.empty() && audio_.open(soundFile(paths_, record.soundName)))
        audio_.play();
}

}  // namespace kavenda
