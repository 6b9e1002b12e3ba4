// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "desktop/InstanceSocket.h"

#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <optional>
#include <string>

#include <csignal>

#include <sys/fsuid.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

namespace kavenda {
namespace {

namespace fs = std::filesystem;

constexpr uid_t nobody = 65534;

// Sets an environment variable for one test, or removes it, and puts the old value back.
class ScopedEnv {
public:
    ScopedEnv(const char* name, std::optional<std::string> value) : name_(name)
    {
        if (const char* old = std::getenv(name))
            old_ = old;
        value ? ::setenv(name, value->c_str(), 1) : ::unsetenv(name);
    }
    ~ScopedEnv() { old_ ? ::setenv(name_, old_->c_str(), 1) : ::unsetenv(name_); }

private:
    const char* name_;
    std::optional<std::string> old_;
};

// The line a caller sent, as the listener reads it: sending is done when send() returns.
std::string receivedLine(const InstanceSocket& listener)
{
    const int peer = listener.acceptCaller();
    if (peer < 0)
        return "<nobody called>";
    std::string line;
    char c = 0;
    while (line.find('\n') == std::string::npos && ::read(peer, &c, 1) == 1)
        line += c;
    ::close(peer);
    return line;
}

// A socket bound to the path and not listening, as a program that died leaves it; -1 if the bind fails.
int boundSocket(const fs::path& path)
{
    const int fd = ::socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::snprintf(address.sun_path, sizeof address.sun_path, "%s", path.c_str());
    return ::bind(fd, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0 ? fd : -1;
}

// Runs work in a child whose effective user is nobody while it still finds paths as root (its
// file-system id), so that it can reach a socket in our private folder; the child's id.
pid_t asNobodyReachingOurFolder(const std::function<int()>& work)
{
    const pid_t child = ::fork();
    if (child == 0) {
        if (::setresuid(0, nobody, 0) != 0)
            ::_exit(100);
        ::setfsuid(0);
        ::_exit(work());
    }
    return child;
}

int exitStatus(pid_t child)
{
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

class InstanceSocketTest : public ::testing::Test {
protected:
    test::TempFolder temp;
    ScopedEnv runtime{"XDG_RUNTIME_DIR", (temp.path() / "runtime").string()};
    ScopedEnv tmpdir{"TMPDIR", (temp.path() / "tmp").string()};
    fs::path data = temp.path() / "data";
    fs::path fallback = temp.path() / "tmp" / ("kavenda-" + std::to_string(::getuid()));

    void SetUp() override
    {
        fs::create_directories(temp.path() / "runtime");
        ::chmod((temp.path() / "runtime").c_str(), 0700);
        fs::create_directories(temp.path() / "tmp");
        ::chmod((temp.path() / "tmp").c_str(), 01777);
        fs::create_directories(data);
    }
};

// A message reaches the program of the same folder only; the socket goes with the program, and
// one left by a crash is replaced.
TEST_F(InstanceSocketTest, AMessageReachesTheProgramOfTheSameFolderOnlyWhileItRuns)
{
    EXPECT_FALSE(sendToRunningInstance(data, "show")) << "nobody listens yet";
    fs::path path;
    {
        InstanceSocket running(data);
        ASSERT_TRUE(running.listen());
        path = running.path();
        EXPECT_EQ(path.parent_path(), temp.path() / "runtime");
        EXPECT_TRUE(sendToRunningInstance(data / "." / "", "quit"));
        EXPECT_EQ(receivedLine(running), "quit\n");
        fs::create_directories(temp.path() / "other");
        EXPECT_FALSE(sendToRunningInstance(temp.path() / "other", "show"));
        EXPECT_FALSE(InstanceSocket(data).listen()) << "a running program keeps its socket";
    }
    EXPECT_FALSE(fs::exists(path)) << "a clean exit removes the socket";

    const int dead = boundSocket(path);
    ASSERT_GE(dead, 0);
    ::close(dead);
    EXPECT_FALSE(sendToRunningInstance(data, "show"));
    InstanceSocket next(data);
    EXPECT_TRUE(next.listen());
    EXPECT_TRUE(sendToRunningInstance(data, "show"));
    EXPECT_EQ(receivedLine(next), "show\n");
}

// A runtime folder that is not private gives way to one of our own, not one another user made.
TEST_F(InstanceSocketTest, ARuntimeFolderThatIsNotPrivateGivesWayToOneOfOurOwn)
{
    const fs::path open = temp.path() / "open";
    fs::create_directories(open);
    ::chmod(open.c_str(), 0755);
    // clang-format off
    const std::pair<const char*, std::optional<std::string>> cases[] = {
        {"missing",         std::nullopt},
        {"relative",        std::string("runtime")},
        {"readable by all", open.string()},
        {"no folder",       (temp.path() / "none").string()},
    };
    // clang-format on
    for (const auto& [what, value] : cases) {
        const ScopedEnv variable("XDG_RUNTIME_DIR", value);
        EXPECT_EQ(InstanceSocket::runtimeFolder(), fallback) << what;
        struct stat status {};
        ASSERT_EQ(::lstat(fallback.c_str(), &status), 0) << what;
        EXPECT_EQ(status.st_mode & 0777, 0700u) << what;
    }

    // A fallback folder made by another user is not used.
    const ScopedEnv variable("XDG_RUNTIME_DIR", std::nullopt);
    ::chmod(fallback.c_str(), 0777);
    EXPECT_EQ(InstanceSocket::runtimeFolder(), std::nullopt) << "open to everyone";
    if (::getuid() == 0) {
        ::chmod(fallback.c_str(), 0700);
        ASSERT_EQ(::chown(fallback.c_str(), nobody, nobody), 0);
        EXPECT_EQ(InstanceSocket::runtimeFolder(), std::nullopt) << "another user's";
    }
    InstanceSocket socket(data);
    EXPECT_TRUE(socket.path().empty());
    EXPECT_FALSE(socket.listen());
    EXPECT_FALSE(socket.send("show"));
}

TEST_F(InstanceSocketTest, NeitherEndTrustsAnotherUser)
{
    if (::getuid() != 0)
        GTEST_SKIP() << "needs root to act as a second user";
    InstanceSocket running(data);
    ASSERT_TRUE(running.listen());
    // A caller of another user reaches the socket: turned away, its line never read.
    EXPECT_EQ(exitStatus(asNobodyReachingOurFolder([&] { return sendToRunningInstance(data, "quit") ? 0 : 1; })), 0);
    EXPECT_EQ(running.acceptCaller(), -1);

    // A listener of another user on our socket's name: our message is not handed to it.
    const fs::path elsewhere = temp.path() / "else";
    fs::create_directories(elsewhere);
    InstanceSocket ours(elsewhere);
    int ready[2];
    ASSERT_EQ(::pipe(ready), 0);
    const pid_t child = asNobodyReachingOurFolder([&] {
        const int listener = boundSocket(ours.path());
        const char mark = listener >= 0 && ::listen(listener, 4) == 0 ? 'y' : 'n';
        [[maybe_unused]] const ssize_t written = ::write(ready[1], &mark, 1);
        ::pause();
        return 0;
    });
    char mark = 0;
    ASSERT_EQ(::read(ready[0], &mark, 1), 1);
    EXPECT_EQ(mark, 'y');
    EXPECT_FALSE(ours.send("show"));
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
    ::close(ready[0]);
    ::close(ready[1]);
}

}  // namespace
}  // namespace kavenda
