// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "desktop/InstanceSocket.h"

#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <system_error>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace kavenda {

namespace fs = std::filesystem;

namespace {

// A folder only this user can enter: owned by us, a real folder (no link), no rights for others.
bool privateFolder(const fs::path& folder)
{
    struct stat status {};
    return ::lstat(folder.c_str(), &status) == 0 && S_ISDIR(status.st_mode) && status.st_uid == ::getuid()
        && (status.st_mode & 077) == 0;
}

// FNV-1a: the same name from every program that links this, whatever its library.
std::uint64_t stableHash(std::string_view text)
{
    std::uint64_t hash = 14695981039346656037ull;
    for (const char c : text) {
        hash ^= static_cast<unsigned char>(c);
        hash *= 1099511628211ull;
    }
    return hash;
}

std::optional<sockaddr_un> socketAddress(const fs::path& path)
{
    sockaddr_un address{};
    const std::string& text = path.native();
    if (text.empty() || text.size() >= sizeof address.sun_path)
        return std::nullopt;
    address.sun_family = AF_UNIX;
    std::memcpy(address.sun_path, text.data(), text.size());
    return address;
}

bool sameUser(int peer)
{
    ucred credentials{};
    socklen_t length = sizeof credentials;
    return ::getsockopt(peer, SOL_SOCKET, SO_PEERCRED, &credentials, &length) == 0 && credentials.uid == ::getuid();
}

// A connection to the socket's listener when it runs under this user's id; -1 otherwise.
int connectToListener(const fs::path& path)
{
    const std::optional<sockaddr_un> address = socketAddress(path);
    if (!address)
        return -1;
    const int peer = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (peer < 0)
        return -1;
    if (::connect(peer, reinterpret_cast<const sockaddr*>(&*address), sizeof *address) != 0 || !sameUser(peer)) {
        ::close(peer);
        return -1;
    }
    return peer;
}

}  // namespace

std::optional<fs::path> InstanceSocket::runtimeFolder()
{
    if (const char* runtime = std::getenv("XDG_RUNTIME_DIR")) {
        const fs::path folder(runtime);
        if (folder.is_absolute() && privateFolder(folder))
            return folder;
    }
    const char* temporary = std::getenv("TMPDIR");
    const fs::path base = temporary && fs::path(temporary).is_absolute() ? fs::path(temporary) : fs::path("/tmp");
    const fs::path fallback = base / ("kavenda-" + std::to_string(::getuid()));
    if (::mkdir(fallback.c_str(), 0700) != 0 && errno != EEXIST)
        return std::nullopt;
    if (!privateFolder(fallback))
        return std::nullopt;
    return fallback;
}

InstanceSocket::InstanceSocket(const fs::path& dataFolder)
{
    const std::optional<fs::path> folder = runtimeFolder();
    if (!folder)
        return;
    // The same data folder by any spelling gives the same name.
    std::error_code error;
    fs::path canonical = fs::weakly_canonical(fs::absolute(dataFolder, error), error);
    if (error)
        canonical = dataFolder.lexically_normal();
    char name[40];
    std::snprintf(name, sizeof name, "kavenda-%016llx",
                  static_cast<unsigned long long>(stableHash(canonical.native())));
    path_ = *folder / name;
}

InstanceSocket::~InstanceSocket()
{
    if (listener_ < 0)
        return;
    ::close(listener_);
    ::unlink(path_.c_str());
}

bool InstanceSocket::send(std::string_view message) const
{
    const int peer = connectToListener(path_);
    if (peer < 0)
        return false;
    std::string line(message);
    line += '\n';
    const bool sent = ::send(peer, line.data(), line.size(), MSG_NOSIGNAL) == static_cast<ssize_t>(line.size());
    ::close(peer);
    return sent;
}

bool InstanceSocket::listen()
{
    if (listener_ >= 0)
        return true;
    // Starts at the same moment take turns: one that found the name bound but not yet listening
    // would take the socket for a crash's leftover and unlink it under the other's feet.
    const int folder = ::open(path_.parent_path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0)
        return false;
    ::flock(folder, LOCK_EX);
    const bool listening = takeName();
    const int error = errno;
    ::close(folder);
    errno = error;
    return listening;
}

bool InstanceSocket::takeName()
{
    if (bindAndListen())
        return true;
    if (errno != EADDRINUSE)
        return false;
    // Taken: by a running program (which answers), or a socket a crash left behind.
    if (const int peer = connectToListener(path_); peer >= 0) {
        ::close(peer);
        return false;
    }
    ::unlink(path_.c_str());
    return bindAndListen();
}

bool InstanceSocket::bindAndListen()
{
    const std::optional<sockaddr_un> address = socketAddress(path_);
    if (!address)
        return false;
    const int listener = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    if (listener < 0)
        return false;
    if (::bind(listener, reinterpret_cast<const sockaddr*>(&*address), sizeof *address) != 0
        || ::listen(listener, SOMAXCONN) != 0) {
        const int bindError = errno;
        ::close(listener);
        errno = bindError;
        return false;
    }
    listener_ = listener;
    return true;
}

int InstanceSocket::acceptCaller() const
{
    for (;;) {
        const int peer = ::accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK);
        if (peer < 0)
            return -1;
        if (sameUser(peer))
            return peer;
        ::close(peer);
    }
}

bool sendToRunningInstance(const fs::path& dataFolder, std::string_view message)
{
    return InstanceSocket(dataFolder).send(message);
}

}  // namespace kavenda
