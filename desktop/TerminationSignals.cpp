// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "desktop/TerminationSignals.h"

#include <QSocketNotifier>

#include <csignal>

#include <sys/socket.h>
#include <unistd.h>

namespace kavenda {

namespace {

int pipeEnds[2] = {-1, -1};

void wake(int)
{
    const char byte = 1;
    [[maybe_unused]] const ssize_t written = ::write(pipeEnds[1], &byte, 1);
}

}  // namespace

TerminationSignals::TerminationSignals(QObject* parent)
    : QObject(parent)
{
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, pipeEnds) != 0)
        return;
    auto* notifier = new QSocketNotifier(pipeEnds[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this] {
        char byte;
        [[maybe_unused]] const ssize_t count = ::read(pipeEnds[0], &byte, 1);
        emit received();
    });
    struct sigaction action {};
    action.sa_handler = wake;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    sigaction(SIGTERM, &action, nullptr);
    sigaction(SIGINT, &action, nullptr);
}

}  // namespace kavenda
