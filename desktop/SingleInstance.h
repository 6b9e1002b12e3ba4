#pragma once

#include <QByteArray>
#include <QObject>

#include <filesystem>

namespace kavenda {

// One running program per data folder: the first start listens on a local socket named after
// the folder; a later start hands its wish over to it and ends. Plain Unix sockets: Qt's own
// would bring the network library and its dozen dependencies into every start.
class SingleInstance : public QObject {
    Q_OBJECT

public:
    explicit SingleInstance(const std::filesystem::path& dataFolder, QObject* parent = nullptr);
    ~SingleInstance() override;

    // True when another instance took the wish: to show its window unless in the background.
    bool handOver(bool background);
    // Becomes the running instance; false when the socket cannot be made.
    bool listen();

signals:
    void showRequested();

private:
    bool bindAndListen();
    void accept();

    QByteArray path_;
    int listener_ = -1;
};

}  // namespace kavenda
