// SPDX-License-Identifier: MIT
#include "platform/posix/InstanceSocket.h"

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>

#include <algorithm>
#include <csignal>
#include <future>

#include "tests/support/FileDescriptor.h"
#include "tests/support/ManualRunLoop.h"
#include "tests/support/ScratchFolder.h"

namespace tonquil {
namespace {

using namespace std::chrono_literals;

const std::string wholeRequest = std::string("TQL1show").append(1, '\0');

class InstanceSockets : public testing::Test {
 protected:
    Result<std::unique_ptr<InstanceListener>> claim() {
        return InstanceSocket::claim(path, loop, hear,
                                     [this](std::string_view line) { log.emplace_back(line); });
    }
    /// Hands over a request while this instance keeps running.
    std::string handOver(const std::string& request) {
        auto answer =
            std::async(std::launch::async, [&] { return InstanceSocket::handOver(path, request); });
        while (answer.wait_for(0s) != std::future_status::ready) {
            loop.pollReadable(10ms);
        }
        return answer.get().value().value();
    }
    /// Sends these bytes as a foreign program would.
    [[nodiscard]] FileDescriptor sendRaw(const std::string& bytes) const {
        FileDescriptor client(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
        sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
        std::ranges::copy(path.native(), std::begin(address.sun_path));
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
    /// Whether the peer has closed the connection without an answer.
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
    std::function<std::string(const std::string&)> hear = [this](const std::string& request) {
        requests.push_back(request);
        return "heard " + request;
    };
};

TEST_F(InstanceSockets, TakesOverSocketOnlyFromKilledInstance) {
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
    ASSERT_TRUE(unheard && !*unheard) << "an instance that hangs is not waited for for ever";
    EXPECT_NE(unheard->error().sentence.find("does not answer"), std::string::npos);
    kill(child, SIGKILL);
    ASSERT_EQ(waitpid(child, nullptr, 0), child);
    ASSERT_TRUE(std::filesystem::exists(path)) << "the killed instance leaves its socket";

    const auto listener = claim().value();
    EXPECT_EQ(handOver("show\nquit"), "heard show quit") << "an answer is one line";
    EXPECT_EQ(requests, std::vector<std::string>{"show\nquit"});
    EXPECT_EQ(handOver(std::string(InstanceSocket::mostBytes, 'x')),
              std::string("heard ").append(InstanceSocket::mostBytes - 6, 'x'));
}

TEST_F(InstanceSockets, RefusesInvalidRequests) {
    const auto listener = claim().value();
    for (const std::string& bytes : {std::string("GET / HTTP/1.0\r\n\r\n"),
                                     std::string("TQL1").append(InstanceSocket::mostBytes + 1, 'x'),
                                     wholeRequest + "TQL1", std::string("TQL1sh"), std::string()}) {
        SCOPED_TRACE(bytes.substr(0, 30));
        log.clear();
        const auto client = sendRaw(bytes);
        shutdown(client.get(), SHUT_WR);
        pollAll();
        EXPECT_TRUE(isClosed(client));
        EXPECT_EQ(log.size(), 1U);
    }
    EXPECT_TRUE(requests.empty());
    for (const auto& text :
         {std::string(InstanceSocket::mostBytes + 1, 'x'), std::string(1, '\0')}) {
        const auto refused = InstanceSocket::handOver(path, text);
        EXPECT_TRUE(refused && !*refused);
    }
    EXPECT_EQ(handOver(""), "heard ") << "it goes on after all of that";
}

TEST_F(InstanceSockets, DropsSilentClientsWhileServingOthers) {
    const auto listener = claim().value();
    std::vector<FileDescriptor> silent;
    while (silent.size() + 1 < InstanceSocket::mostClients) {
        silent.push_back(sendRaw("TQL"));
    }
    pollAll();
    EXPECT_EQ(handOver("one more"), "heard one more");
    silent.push_back(sendRaw(""));
    // Eight are served at once; the ninth waits its turn.
    const auto waiting = sendRaw(wholeRequest);
    pollAll();
    EXPECT_EQ(requests.size(), 1U);
    loop.advance(InstanceSocket::requestTime);
    EXPECT_TRUE(std::ranges::all_of(silent, isClosed));
    pollAll();
    EXPECT_EQ(requests.back(), "show");
}

TEST_F(InstanceSockets, SurvivesHandlerDestroyingListener) {
    std::unique_ptr<InstanceListener> listener;
    hear = [&](const std::string&) {
        listener.reset();
        return std::string("quits");
    };
    listener = claim().value();
    EXPECT_EQ(handOver("quit"), "quits");
    EXPECT_FALSE(std::filesystem::exists(path));
    EXPECT_NE(claim().value(), nullptr) << "the place is free";
}

TEST_F(InstanceSockets, TakesPlaceOfInstanceThatEndsInsteadOfAnswering) {
    auto ending = claim().value();
    ManualRunLoop ownLoop;
    auto start = std::async(std::launch::async, [&] {
        return InstanceSocket::claimOrHandOver(path, "show", ownLoop, hear);
    });
    ASSERT_NE(loop.pollReadable(5s), 0U) << "it is connected, and never gets an answer";
    ending.reset();
    const auto outcome = start.get().value();
    EXPECT_TRUE(std::holds_alternative<std::unique_ptr<InstanceListener>>(outcome));
    EXPECT_TRUE(requests.empty());
}

TEST_F(InstanceSockets, RefusesOtherUsersAndAccessibleFolder) {
    if (geteuid() != 0) {
        GTEST_SKIP() << "only root can be two users";
    }
    const auto listener = claim().value();
    // As if the folder's permissions had been opened up behind the program's back.
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
    EXPECT_FALSE(InstanceSocket::handOver(path, "show", 30ms));
    EXPECT_FALSE(claim());
    path = folder.path() / std::string(120, 'x');
    EXPECT_FALSE(claim()) << "longer than a socket's name may be";
}

}  // namespace
}  // namespace tonquil
