#include "app/SingleInstance.h"

#include <QCryptographicHash>
#include <QDir>
#include <QLocalSocket>

#include <unistd.h>

namespace kavenda {

namespace {

constexpr int waitMilliseconds = 2000;
const QByteArray showWish = "show\n";
const QByteArray backgroundWish = "background\n";

}  // namespace

SingleInstance::SingleInstance(const std::filesystem::path& dataFolder, QObject* parent) : QObject(parent)
{
    // The same folder by any spelling; the user's id keeps two users apart in a shared /tmp.
    const QDir dir(QString::fromStdString(dataFolder.string()));
    const QString canonical = dir.canonicalPath();
    const QByteArray key = (canonical.isEmpty() ? QDir::cleanPath(dir.absolutePath()) : canonical).toUtf8();
    name_ = QStringLiteral("kavenda-%1-%2")
                .arg(getuid())
                .arg(QString::fromLatin1(QCryptographicHash::hash(key, QCryptographicHash::Sha1).toHex().left(16)));
    connect(&server_, &QLocalServer::newConnection, this, [this] {
        while (QLocalSocket* socket = server_.nextPendingConnection()) {
            connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
            connect(socket, &QLocalSocket::readyRead, this, [this, socket] { readWish(socket); });
        }
    });
}

bool SingleInstance::handOver(bool background)
{
    QLocalSocket socket;
    socket.connectToServer(name_);
    if (!socket.waitForConnected(waitMilliseconds))
        return false;
    socket.write(background ? backgroundWish : showWish);
    socket.waitForBytesWritten(waitMilliseconds);
    socket.disconnectFromServer();
    return true;
}

bool SingleInstance::listen()
{
    if (server_.listen(name_))
        return true;
    // A socket left by a program that crashed: nobody answered handOver, so it is stale.
    QLocalServer::removeServer(name_);
    return server_.listen(name_);
}

void SingleInstance::readWish(QLocalSocket* socket)
{
    if (!socket->canReadLine())
        return;
    if (socket->readLine() == showWish)
        emit showRequested();
}

}  // namespace kavenda
