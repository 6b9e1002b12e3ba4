#include "desktop/SingleInstance.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QSocketNotifier>

#include <cerrno>
#include <cstring>
#include <optional>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace kavenda {

namespace {

const QByteArray showWish = "show\n";
const QByteArray backgroundWish = "background\n";

// Nothing for a path longer than the socket address holds: a deep TMPDIR.
std::optional<sockaddr_un> socketAddress(const QByteArray& path)
{
    sockaddr_un address{};
    if (path.size() >= static_cast<qsizetype>(sizeof address.sun_path))
        return std::nullopt;
    address.sun_family = AF_UNIX;
    std::memcpy(address.sun_path, path.constData(), static_cast<std::size_t>(path.size()));
    return address;
}

}  // namespace

SingleInstance::SingleInstance(const std::filesystem::path& dataFolder, QObject* parent) : QObject(parent)
{
    // The same folder by any spelling; the user's id keeps two users apart in a shared /tmp.
    const QDir dir(QString::fromStdString(dataFolder.string()));
    const QString canonical = dir.canonicalPath();
    const QByteArray key = (canonical.isEmpty() ? QDir::cleanPath(dir.absolutePath()) : canonical).toUtf8();
    const QByteArray digest = QCryptographicHash::hash(key, QCryptographicHash::Sha1).toHex().left(16);
    const QString name = QStringLiteral("kavenda-%1-%2").arg(getuid()).arg(QString::fromLatin1(digest));
    path_ = QFile::encodeName(QDir(QDir::tempPath()).filePath(name));
}

SingleInstance::~SingleInstance()
{
    if (listener_ < 0)
        return;
    ::close(listener_);
    ::unlink(path_.constData());
}

bool SingleInstance::handOver(bool background)
{
    const std::optional<sockaddr_un> address = socketAddress(path_);
    if (!address)
        return false;
    const int peer = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (peer < 0)
        return false;
    const QByteArray& wish = background ? backgroundWish : showWish;
    const bool handed = ::connect(peer, reinterpret_cast<const sockaddr*>(&*address), sizeof *address) == 0
        && ::send(peer, wish.constData(), static_cast<std::size_t>(wish.size()), MSG_NOSIGNAL) == wish.size();
    ::close(peer);
    return handed;
}

bool SingleInstance::listen()
{
    if (bindAndListen())
        return true;
    // A socket left by a program that crashed: nobody answered handOver, so it is stale.
    ::unlink(path_.constData());
    return bindAndListen();
}

bool SingleInstance::bindAndListen()
{
    const std::optional<sockaddr_un> address = socketAddress(path_);
    if (!address)
        return false;
    const int listener = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    if (listener < 0)
        return false;
    if (::bind(listener, reinterpret_cast<const sockaddr*>(&*address), sizeof *address) != 0
        || ::listen(listener, SOMAXCONN) != 0) {
        ::close(listener);
        return false;
    }
    listener_ = listener;
    auto* incoming = new QSocketNotifier(listener_, QSocketNotifier::Read, this);
    connect(incoming, &QSocketNotifier::activated, this, &SingleInstance::accept);
    return true;
}

// Each second start writes one line and closes; its wish counts once the line is whole.
void SingleInstance::accept()
{
    const int peer = ::accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK);
    if (peer < 0)
        return;
    auto* readable = new QSocketNotifier(peer, QSocketNotifier::Read, this);
    connect(readable, &QSocketNotifier::activated, this, [this, readable, peer, line = QByteArray()]() mutable {
        char bytes[64];
        const ssize_t count = ::read(peer, bytes, sizeof bytes);
        if (count < 0 && (errno == EAGAIN || errno == EINTR))
            return;
        if (count > 0)
            line.append(bytes, count);
        if (count > 0 && !line.contains('\n') && line.size() < 64)
            return;
        if (line == showWish)
            emit showRequested();
        readable->setEnabled(false);
        readable->deleteLater();
        ::close(peer);
    });
}

}  // namespace kavenda
