// SPDX-License-Identifier: MIT
#include "platform/posix/UdpSocket.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <vector>

#include "tests/support/ManualRunLoop.h"

namespace tonquil {
namespace {

using namespace std::chrono_literals;

constexpr std::uint32_t localhost = 0x7F000001;

/// Two sockets of this machine, the first bound to a free port.
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

TEST_F(UdpSockets, PassOnWholeDatagramsWithTheirSource) {
    const std::vector<std::string> datagrams{"one", "", std::string("\0x", 2),
                                             std::string(65507, 'x')};
    std::vector<std::string> received;
    const auto watch =
        first->receiveOn(loop, [&](std::string_view bytes, const SocketAddress& source) {
            received.emplace_back(bytes);
            EXPECT_EQ(source, second->localAddress());
        });
    for (const std::string& datagram : datagrams) {
        EXPECT_EQ(second->send(datagram, first->localAddress()), 0);
    }
    EXPECT_EQ(loop.pollReadable(1s), 1U);
    EXPECT_EQ(received, datagrams);
    EXPECT_EQ(second->send(std::string(65508, 'x'), first->localAddress()), EMSGSIZE);
}

TEST_F(UdpSockets, TakeOnlySoMuchInOneTurnAndTheRestInTheNext) {
    int count = 0;
    const auto watch =
        first->receiveOn(loop, [&](std::string_view, const SocketAddress&) { ++count; });
    constexpr int sent = UdpSocket::mostDatagrams + 10;
    for (int i = 0; i < sent; ++i) {
        ASSERT_EQ(second->send("x", first->localAddress()), 0);
    }
    for (int turn = 0; turn < sent && count < sent; ++turn) {
        const int before = count;
        EXPECT_EQ(loop.pollReadable(1s), 1U);
        EXPECT_LE(count - before, UdpSocket::mostDatagrams);
        EXPECT_GT(count, before);
    }
    EXPECT_EQ(count, sent);
    EXPECT_EQ(loop.pollReadable(0ms), 0U);
}

TEST_F(UdpSockets, HaveTheirPortForThemselvesUntilTheyGo) {
    const SocketAddress address = first->localAddress();
    EXPECT_EQ(UdpSocket::open().value()->bind(address), EADDRINUSE);
    EXPECT_EQ(UdpSocket::open().value()->bind(SocketAddress(0, address.port())), EADDRINUSE);
    // It is free in the very call in which the receiver lets go, which then hears no more.
    int count = 0;
    std::unique_ptr<RunLoop::Handle> watch;
    watch = first->receiveOn(loop, [&](std::string_view, const SocketAddress&) {
        ++count;
        watch.reset();
        first.reset();
        EXPECT_EQ(UdpSocket::open().value()->bind(address), 0);
    });
    EXPECT_EQ(second->send("x", address), 0);
    EXPECT_EQ(second->send("x", address), 0);
    EXPECT_EQ(loop.pollReadable(1s), 1U);
    EXPECT_EQ(count, 1);
}

TEST_F(UdpSockets, TellWhySomethingIsNotSentAndGoOn) {
    EXPECT_EQ(second->send("x", SocketAddress(0xFFFFFFFF, 9)), EACCES) << "not without leave";
    EXPECT_EQ(second->enableBroadcast(), 0);
    EXPECT_EQ(second->send("x", SocketAddress(localhost, 0)), EINVAL);
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

}  // namespace
}  // namespace tonquil
