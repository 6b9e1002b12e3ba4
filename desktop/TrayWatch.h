#pragma once

#include <QObject>

namespace kavenda {

// Tells once when an X11 system tray takes its selection after the start (a panel that comes
// up after the autostart). Qt has no public signal for it, and looking again and again would
// wake an idle program on every desktop without a tray.
class TrayWatch : public QObject {
    Q_OBJECT

public:
    explicit TrayWatch(QObject* parent = nullptr);

signals:
    void trayAppeared();

private slots:
    void lookAgain();

private:
    bool told_ = false;
};

}  // namespace kavenda
