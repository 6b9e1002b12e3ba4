// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

// A stand-in for a panel's status-notifier watcher with its host, for the system tests: it
// registers on the session bus, says a host is there, and prints each item that registers.
#include <QCoreApplication>
#include <QDBusAbstractAdaptor>
#include <QDBusConnection>
#include <QStringList>

#include <cstdio>

class Watcher : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(bool IsStatusNotifierHostRegistered READ hostRegistered)
    Q_PROPERTY(int ProtocolVersion READ protocolVersion)
    Q_PROPERTY(QStringList RegisteredStatusNotifierItems READ items)

public:
    explicit Watcher(QObject* parent) : QDBusAbstractAdaptor(parent) {}
    bool hostRegistered() const { return true; }
    int protocolVersion() const { return 0; }
    QStringList items() const { return items_; }

public slots:
    void RegisterStatusNotifierItem(const QString& service)
    {
        items_ << service;
        std::printf("item %s\n", qPrintable(service));
        std::fflush(stdout);
        emit StatusNotifierItemRegistered(service);
    }
    void RegisterStatusNotifierHost(const QString&) {}

signals:
    void StatusNotifierItemRegistered(const QString& service);
    void StatusNotifierItemUnregistered(const QString& service);
    void StatusNotifierHostRegistered();

private:
    QStringList items_;
};

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    QObject root;
    auto* watcher = new Watcher(&root);
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.registerObject(QStringLiteral("/StatusNotifierWatcher"), &root)
        || !bus.registerService(QStringLiteral("org.kde.StatusNotifierWatcher")))
        return 1;
    emit watcher->StatusNotifierHostRegistered();
    return app.exec();
}

#include "StatusNotifierWatcher.moc"
