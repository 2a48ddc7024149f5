// SPDX-License-Identifier: MIT
#include "platform/posix/UdpSocket.h"

#include <gtest/gtest.h>
#include <sys/eventfd.h>

#include <cerrno>

#include "platform/posix/PollRunLoop.h"
#include "tests/support/FileDescriptor.h"
#include "tests/support/ManualRunLoop.h"

namespace tonquil {
namespace {

using namespace std::chrono_literals;

constexpr std::uint32_t localhost = 0x7F000001;

/// Two sockets on this machine, each bound to a free port.
class UdpSockets : public testing::Test {
 protected:
    UdpSockets() {
        EXPECT_EQ(first->bind(SocketAddress(localhost, 0)), 0);
        EXPECT_EQ(second->bind(SocketAddress(localhost, 0)), 0);
    }

    ManualRunLoop loop;
    std::unique_ptr<UdpSocket> first = UdpSocket::open().value();
    std::unique_ptr<UdpSocket> second = UdpSocket::open().value();
};

TEST_F(UdpSockets, DeliverDatagramsWithSourceAndBoundedPerTurn) {
    std::vector<std::string> sent{"one", "", std::string("\0x", 2), std::string(65507, 'x')};
    sent.resize(UdpSocket::mostDatagrams + 10, "more");
    std::vector<std::string> received;
    const auto watch =
        first->receiveOn(loop, [&](std::string_view bytes, const SocketAddress& source) {
            received.emplace_back(bytes);
            EXPECT_EQ(source, second->localAddress());
        });
    for (const std::string& datagram : sent) {
        ASSERT_EQ(second->send(datagram, first->localAddress()), 0);
    }
    EXPECT_EQ(second->send(std::string(65508, 'x'), first->localAddress()), EMSGSIZE);
    for (std::size_t before = 0; received.size() < sent.size(); before = received.size()) {
        ASSERT_EQ(loop.pollReadable(1s), 1U);
        EXPECT_LE(received.size() - before, std::size_t{UdpSocket::mostDatagrams});
    }
    EXPECT_EQ(received, sent);
}

TEST_F(UdpSockets, HoldTheirPortExclusivelyUntilReleased) {
    const SocketAddress address = first->localAddress();
    EXPECT_EQ(UdpSocket::open().value()->bind(SocketAddress(0, address.port())), EADDRINUSE);
    int count = 0;
    std::unique_ptr<RunLoop::Handle> watch;
    watch = first->receiveOn(loop, [&](std::string_view, const SocketAddress&) {
        ++count;
        watch.reset();
        first.reset();
        EXPECT_EQ(UdpSocket::open().value()->bind(address), 0) << "free in this very call";
    });
    EXPECT_EQ(second->send("x", address), 0);
    EXPECT_EQ(second->send("x", address), 0);
    EXPECT_EQ(loop.pollReadable(1s), 1U);
    EXPECT_EQ(count, 1) << "it hears no more";
}

TEST_F(UdpSockets, AnswerFromTheQueriedAddress) {
    const auto server = UdpSocket::open().value();
    EXPECT_EQ(server->bind(SocketAddress(0, 0)), 0);
    const SocketAddress asked(localhost + 5, server->localAddress().port());
    const auto answering =
        server->receiveOn(loop, [&](std::string_view, const SocketAddress& source) {
            EXPECT_EQ(server->send("answer", source), 0);
        });
    std::vector<SocketAddress> sources;
    const auto asking = second->receiveOn(
        loop, [&](std::string_view, const SocketAddress& source) { sources.push_back(source); });
    EXPECT_EQ(second->send("x", asked), 0);
    while (loop.pollReadable(100ms) > 0) {
    }
    EXPECT_EQ(sources, std::vector{asked});
}

TEST_F(UdpSockets, ReportSendErrorsAndContinue) {
    EXPECT_EQ(second->send("x", SocketAddress(0xFFFFFFFF, 9)), EACCES) << "not without leave";
    const SocketAddress gone = first->localAddress();
    first.reset();
    for (int i = 0; i < 10; ++i) {
        EXPECT_EQ(second->send("x", gone), 0) << "nobody listens, and that is no error";
    }
    int count = 0;
    const auto watch =
        second->receiveOn(loop, [&](std::string_view, const SocketAddress&) { ++count; });
    EXPECT_EQ(second->send("x", second->localAddress()), 0);
    while (loop.pollReadable(100ms) > 0) {
    }
    EXPECT_EQ(count, 1);
}

TEST(PollRunLoops, RunDueCallbacksInOrderAndEndWhenIdle) {
    PollRunLoop loop;
    std::string order;
    const FileDescriptor readable(eventfd(1, EFD_CLOEXEC));
    const auto late = loop.callOnce(20ms, [&] { order += 'e'; });
    const auto early = loop.callOnce(10ms, [&] { order += 'd'; });
    std::unique_ptr<RunLoop::Handle> watch;
    watch = loop.watchReadable(readable.get(), [&] {
        order += 'b';
        loop.post([&] { order += 'c'; });
        watch.reset();
    });
    loop.post([&] { order += 'a'; });
    loop.run();
    EXPECT_EQ(order, "abcde");
}

}  // namespace
}  // namespace tonquil
