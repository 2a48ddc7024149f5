// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "tests/remote/ServerBench.h"

namespace tonquil {
namespace {

using namespace std::chrono_literals;

constexpr std::uint32_t stranger = 0x0B000000;
const SocketAddress honest(0x0A000002, 50000);

class Flood : public testing::Test, public ServerBench {
 protected:
    Flood() { start(); }
    std::ptrdiff_t sentTo(const SocketAddress& recipient) {
        return std::ranges::count(wire.sent, recipient, &Wire::Datagram::recipient);
    }
};

TEST_F(Flood, FromOneHostGetsFewAnswersOnAnyPorts) {
    for (std::uint16_t i = 0; i < 10'000; ++i) {
        receive(i % 2 == 0 ? "Kantivel scan " : "Kantivel sub ", {stranger, i});
        loop.advance(1ms);
    }
    // A burst of 100, and 20 a second.
    EXPECT_NEAR(static_cast<double>(wire.sent.size()), 100 + 20 * 10, 5);
    // More than the global rate could grant at one moment if refused requests used it up.
    for (int i = 0; i < 50; ++i) {
        receive("Kantivel scan ", honest);
    }
    EXPECT_EQ(sentTo(honest), 50) << "others are answered meanwhile";
    const SocketAddress otherPort(stranger, 50000);
    receive("Kantivel scan ", otherPort);
    loop.advance(2s);
    EXPECT_EQ(sentTo(otherPort), 1) << "and so is that host once it is quiet";
    const SocketAddress local(0x7F010203, 50000);
    for (int i = 0; i < 1000; ++i) {
        receive("Kantivel scan ", local);
    }
    EXPECT_EQ(sentTo(local), 1000) << "a program on this computer";
}

TEST_F(Flood, FromForgedHostsIsLimitedGloballyAndForgotten) {
    for (std::uint32_t i = 0; i < 100'000; ++i) {
        receive("Kantivel scan ", {stranger + i, 44188});
        loop.advance(i % 10 == 0 ? 1ms : 0ms);
    }
    EXPECT_LE(wire.sent.size(), 200U + 50 * 10 + 1);
    receive("Kantivel scan ", honest);
    for (std::uint16_t port = 0; port < 100; ++port) {
        receive("Kantivel scan ", {stranger, port});
    }
    loop.advance(100ms);
    EXPECT_EQ(sentTo(honest), 1) << "the newest hosts are answered first, and each waits once";
    loop.advance(3s);
    forget();
    loop.advance(1h);
    EXPECT_TRUE(wire.sent.empty()) << "who waited in vain is forgotten";
}

TEST_F(Flood, DoesNotBlockTheServersOwnScan) {
    server = make().value();
    forget();
    for (std::uint32_t i = 0; i < 5'000; ++i) {
        receive("Kantivel scan ", {stranger + i, 44188});
        receive("Kantivel scan ", {host->ownAddress, static_cast<std::uint16_t>(i)});
    }
    const SocketAddress own(host->ownAddress, 44188);
    receive("Kantivel scan ", own);
    EXPECT_EQ(sentTo(own), 1) << "at once";
    for (int i = 0; i < 100; ++i) {
        receive("Kantivel scan ", own);
    }
    EXPECT_LT(sentTo(own), 10) << "but not without end";
}

TEST_F(Flood, OfSubscriptionsKeepsSubscribersOfOtherHosts) {
    receive("Kantivel sub ", honest);
    for (std::uint16_t i = 0; i < 10'000; ++i) {
        receive("Kantivel sub ", {stranger, i});
    }
    forget();
    server->sendStateToSubscribers();
    EXPECT_EQ(sentTo(honest), 1);
    EXPECT_EQ(wire.sent.size(), 65U) << "64 of one host";
    // A subscriber that renews in time keeps its place, however many others want it.
    for (std::uint32_t i = 0; i < 500'000; ++i) {
        receive("Kantivel sub ", {stranger + i % 5'000, 1});
        if (i % 50'000 == 0) {
            receive("Kantivel sub ", honest);
        }
        loop.advance(1ms);
    }
    forget();
    server->sendStateToSubscribers();
    EXPECT_EQ(wire.sent.size(), 256U);
    EXPECT_EQ(sentTo(honest), 1);
}

TEST_F(Flood, OfPushesEndsWithTheLastState) {
    receive("Kantivel sub ");
    forget();
    for (int i = 0; i < 1000; ++i) {
        displays.displays[0].gamma = {1, i};
        server->sendStateToSubscribers();
        loop.advance(1ms);
    }
    EXPECT_LE(wire.sent.size(), 20U + 5 + 1);
    loop.advance(200ms);
    EXPECT_NE(wire.sent.back().bytes.find("[1,999]"), std::string::npos);
}

TEST_F(Flood, OfInvalidDatagramsIsRateLimitedInTheLog) {
    for (int i = 0; i < 100'000; ++i) {
        receive("nonsense");
        loop.advance(1ms);
    }
    // A burst of 20, then one in 10 s, each preceded by a line with the number suppressed.
    EXPECT_NEAR(static_cast<double>(log.size()), 20 + 20, 2);
    EXPECT_TRUE(log[20].ends_with(" further datagrams were ignored without a line of their own"));
}

}  // namespace
}  // namespace tonquil
