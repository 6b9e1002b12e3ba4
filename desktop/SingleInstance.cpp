// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "desktop/SingleInstance.h"

#include <QByteArray>
#include <QSocketNotifier>

#include <cerrno>

#include <unistd.h>

namespace kavenda {

SingleInstance::SingleInstance(const std::filesystem::path& dataFolder, QObject* parent)
    : QObject(parent), socket_(dataFolder)
{
}

bool SingleInstance::handOver(bool background)
{
    return socket_.send(background ? "background" : "show");
}

bool SingleInstance::listen()
{
    if (!socket_.listen())
        return false;
    auto* incoming = new QSocketNotifier(socket_.listener(), QSocketNotifier::Read, this);
    connect(incoming, &QSocketNotifier::activated, this, &SingleInstance::accept);
    return true;
}

// Each second start writes one line and closes; its wish counts once the line is whole.
void SingleInstance::accept()
{
    const int peer = socket_.acceptCaller();
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
        if (line == "show\n")
            emit showRequested();
        else if (line == "quit\n")
            emit quitRequested();
        readable->setEnabled(false);
        readable->deleteLater();
        ::close(peer);
    });
}

}  // namespace kavenda
