#pragma once

#include "platform/AudioPlayer.h"
#include "platform/NotificationRecord.h"
#include "platform/Paths.h"

#include <QPointer>
#include <QSystemTrayIcon>

namespace kavenda {

// A reminder that comes while the window is not in front: a message from the tray icon,
// where the desktop has a tray, and the reminder's sound played once.
class DesktopNotifier {
public:
    DesktopNotifier(AudioPlayer& audio, const Paths& paths, QSystemTrayIcon* tray = nullptr);

    void setTray(QSystemTrayIcon* tray);
    void notify(const NotificationRecord& record);

private:
    AudioPlayer& audio_;
    const Paths& paths_;
    QPointer<QSystemTrayIcon> tray_;
};

}  // namespace kavenda
