// SPDX-License-Identifier: MIT
#include "platform/posix/InstanceSocket.h"

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <future>
#include <map>
#include <string>
#include <vector>

#include "tests/support/FileDescriptor.h"
#include "tests/support/ManualRunLoop.h"
#include "tests/support/ScratchFolder.h"
#include "tests/support/Succeeded.h"

namespace tonquil {
namespace {

using namespace std::chrono_literals;

const std::string wholeRequest = std::string("TQL1show").append(1, '\0');

class InstanceSockets : public testing::Test {
 protected:
    Result<std::unique_ptr<InstanceListener>> claim() {
        const auto hear = [this](const std::string& request) {
            requests.push_back(request);
            return "heard " + request;
        };
        return InstanceSocket::claim(path, loop, hear,
                                     [this](std::string_view line) { log.emplace_back(line); });
    }
    /// Hands over while this instance goes on.
    Result<std::string> handOver(const std::string& request) {
        auto answer =
            std::async(std::launch::async, [&] { return InstanceSocket::handOver(path, request); });
        while (answer.wait_for(0s) != std::future_status::ready) {
            loop.pollReadable(10ms);
        }
        return answer.get();
    }
    /// A program that is none of ours sends these bytes.
    [[nodiscard]] FileDescriptor sendRaw(const std::string& bytes) const {
        FileDescriptor client(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        std::copy(path.native().begin(), path.native().end(), std::begin(address.sun_path));
        // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast)
        const auto* const generic = reinterpret_cast<const sockaddr*>(&address);
        EXPECT_EQ(connect(client.get(), generic, sizeof address), 0);
        EXPECT_EQ(send(client.get(), bytes.data(), bytes.size(), MSG_NOSIGNAL),
                  static_cast<ssize_t>(bytes.size()));
        return client;
    }
    void pollAll() {
        while (loop.pollReadable(0ms) != 0) {
        }
    }
    /// Whether the other end is closed, without an answer.
    static bool isClosed(const FileDescriptor& client) {
        char letter = 0;
        const auto count = recv(client.get(), &letter, 1, MSG_DONTWAIT);
        return count == 0 || (count < 0 && errno == ECONNRESET);
    }
    ScratchFolder folder;
    std::filesystem::path path = folder.path() / "private" / "instance";
    ManualRunLoop loop;
    std::vector<std::string> requests;
    std::vector<std::string> log;
};

TEST_F(InstanceSockets, TheSocketOfAKilledInstanceIsTakenOver) {
    const pid_t child = fork();
    if (child == 0) {
        alarm(30);
        const auto first = claim();
        raise(SIGSTOP);
        _exit(first ? 1 : 2);
    }
    ASSERT_EQ(waitpid(child, nullptr, WUNTRACED), child);
    EXPECT_EQ(claim().value(), nullptr);
    const auto unheard = InstanceSocket::handOver(path, "show", 30ms);
    ASSERT_FALSE(unheard) << "an instance that hangs is not waited for for ever";
    EXPECT_NE(unheard.error().sentence.find("does not answer"), std::string::npos);
    kill(child, SIGKILL);
    ASSERT_EQ(waitpid(child, nullptr, 0), child);
    ASSERT_TRUE(std::filesystem::exists(path)) << "the killed instance leaves its socket";

    const auto listener = claim();
    mustSucceed(listener);
    EXPECT_EQ(handOver("show\nquit").value(), "heard show quit") << "an answer is one line";
    EXPECT_EQ(requests, std::vector<std::string>{"show\nquit"});
    EXPECT_EQ(handOver(std::string(InstanceSocket::mostBytes, 'x')).value(),
              std::string("heard ").append(InstanceSocket::mostBytes - 6, 'x'));
}

TEST_F(InstanceSockets, WhatIsNoRequestIsRefused) {
    const auto listener = claim();
    mustSucceed(listener);
    const std::map<std::string, std::string> rows{
        {"garbage", "GET / HTTP/1.0\r\n\r\n"},
        {"too much", std::string("TQL1").append(InstanceSocket::mostBytes + 1, 'x')},
        {"two requests", wholeRequest + "TQL1"},
        {"half a request", "TQL1sh"},
        {"nothing", ""}};
    for (const auto& [what, bytes] : rows) {
        SCOPED_TRACE(what);
        log.clear();
        const auto client = sendRaw(bytes);
        shutdown(client.get(), SHUT_WR);
        pollAll();
        EXPECT_TRUE(isClosed(client));
        EXPECT_EQ(log.size(), 1U);
    }
    EXPECT_TRUE(requests.empty());
    EXPECT_FALSE(InstanceSocket::handOver(path, std::string(InstanceSocket::mostBytes + 1, 'x')));
    EXPECT_FALSE(InstanceSocket::handOver(path, std::string(1, '\0')));
    EXPECT_EQ(handOver("").value(), "heard ") << "it goes on after all of that";
}

TEST_F(InstanceSockets, SilentClientsHoldNothingUpAndAreDropped) {
    const auto listener = claim();
    mustSucceed(listener);
    std::vector<FileDescriptor> silent;
    while (silent.size() + 1 < InstanceSocket::mostClients) {
        silent.push_back(sendRaw("TQL"));
    }
    pollAll();
    EXPECT_EQ(handOver("one more").value(), "heard one more");
    silent.push_back(sendRaw(""));
    // With eight at once, the ninth waits its turn.
    const auto waiting = sendRaw(wholeRequest);
    pollAll();
    EXPECT_EQ(requests.size(), 1U);
    loop.advance(InstanceSocket::requestTime);
    EXPECT_TRUE(std::all_of(silent.begin(), silent.end(), isClosed));
    pollAll();
    EXPECT_EQ(requests.back(), "show");
}

TEST_F(InstanceSockets, AHandlerMayDestroyTheListener) {
    std::unique_ptr<InstanceListener> listener;
    listener = InstanceSocket::claim(path, loop, [&](const std::string&) {
                   listener.reset();
                   return std::string("quits");
               }).value();
    EXPECT_EQ(handOver("quit").value(), "quits");
    EXPECT_FALSE(std::filesystem::exists(path));
    EXPECT_NE(claim().value(), nullptr) << "the place is free";
}

TEST_F(InstanceSockets, AnotherUsersProgramIsRefused) {
    if (geteuid() != 0) {
        GTEST_SKIP() << "only root can be two users";
    }
    const auto listener = claim();
    mustSucceed(listener);
    // As if the folder had been opened behind the program's back.
    for (const auto& entry : {folder.path(), path.parent_path(), path}) {
        ASSERT_EQ(chmod(entry.c_str(), 0777), 0);
    }
    const pid_t child = fork();
    if (child == 0) {
        _exit(setuid(65534) == 0 && sendRaw(wholeRequest).get() >= 0 ? 0 : 1);
    }
    int status = -1;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
    pollAll();
    EXPECT_TRUE(requests.empty());
    EXPECT_EQ(log.size(), 1U);
    EXPECT_FALSE(InstanceSocket::handOver(path, "show", 30ms)) << "nor is such a folder trusted";
    EXPECT_FALSE(claim());
    path = folder.path() / std::string(120, 'x');
    EXPECT_FALSE(claim());
}

}  // namespace
}  // namespace tonquil
