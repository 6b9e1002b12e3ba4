#include "desktop/TrayWatch.h"

#include <QGuiApplication>
#include <QSystemTrayIcon>
#include <qpa/qplatformnativeinterface.h>

namespace kavenda {

TrayWatch::TrayWatch(QObject* parent) : QObject(parent)
{
    // The X11 platform follows the owner of the tray selection and says when it changes; the
    // other platforms have no such signal (Qt decides on a status-notifier tray once, at start).
    QPlatformNativeInterface* native = QGuiApplication::platformNativeInterface();
    if (native && native->metaObject()->indexOfSignal("systemTrayWindowChanged(QScreen*)") >= 0)
        connect(native, SIGNAL(systemTrayWindowChanged(QScreen*)), this, SLOT(lookAgain()));
}

void TrayWatch::lookAgain()
{
    if (told_ || !QSystemTrayIcon::isSystemTrayAvailable())
        return;
    told_ = true;
    emit trayAppeared();
}

}  // namespace kavenda
