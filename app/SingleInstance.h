#pragma once

#include <QLocalServer>
#include <QObject>
#include <QString>

#include <filesystem>

class QLocalSocket;

namespace kavenda {

// One running program per data folder: the first start listens on a local socket named after
// the folder; a later start hands its wish over to it and ends.
class SingleInstance : public QObject {
    Q_OBJECT

public:
    explicit SingleInstance(const std::filesystem::path& dataFolder, QObject* parent = nullptr);

    // True when another instance took the wish: to show its window unless in the background.
    bool handOver(bool background);
    // Becomes the running instance; false when the socket cannot be made.
    bool listen();

signals:
    void showRequested();

private:
    void readWish(QLocalSocket* socket);

    QString name_;
    QLocalServer server_;
};

}  // namespace kavenda
