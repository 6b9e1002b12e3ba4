// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace kavenda {

// The local socket by which the running program of a data folder is reached, Qt-free so that
// the terminal commands can use it. It lives in the user's runtime folder ($XDG_RUNTIME_DIR, or
// a 0700 folder of the user's own in the temporary folder where that is missing), and both ends check that the
// other runs under the same user id: no other user can stand in for the program or talk to it.
class InstanceSocket {
public:
    explicit InstanceSocket(const std::filesystem::path& dataFolder);
    ~InstanceSocket();
    InstanceSocket(const InstanceSocket&) = delete;
    InstanceSocket& operator=(const InstanceSocket&) = delete;

    // The socket's path; empty when no folder safe for it exists.
    const std::filesystem::path& path() const { return path_; }

    // Hands one message line to the running program; false when none of this user listens.
    bool send(std::string_view message) const;
    // Becomes the program that listens; false when the socket cannot be made or another program
    // listens already. A socket left by a program that died is replaced; one that answers is not.
    bool listen();
    // The listening descriptor, non-blocking; -1 before listen().
    int listener() const { return listener_; }
    // The next caller of this user's id, non-blocking; -1 when none waits (callers of other ids
    // are turned away).
    int acceptCaller() const;

    // The folder for the sockets: $XDG_RUNTIME_DIR when it is absolute and the user's own with
    // mode 0700, else kavenda-<uid> in $TMPDIR or /tmp, made and checked alike. Nothing when
    // neither is safe (another user made that folder first).
    static std::optional<std::filesystem::path> runtimeFolder();

private:
    bool takeName();
    bool bindAndListen();

    std::filesystem::path path_;
    int listener_ = -1;
};

// Hands a message ("show", "background", "quit") to the program running on the data folder.
bool sendToRunningInstance(const std::filesystem::path& dataFolder, std::string_view message);

}  // namespace kavenda
