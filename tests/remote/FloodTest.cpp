// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <random>
#include <set>

#include "tests/remote/ServerBench.h"

namespace tonquil {
namespace {

using namespace std::chrono_literals;

constexpr std::uint32_t stranger = 0x0B000000;

class Flood : public testing::Test, public ServerBench {
 protected:
    Flood() { start(); }
    std::size_t sentTo(const SocketAddress& recipient) {
        return static_cast<std::size_t>(
            std::ranges::count(wire.sent, recipient, &Wire::Datagram::recipient));
    }
};

TEST_F(Flood, FromOneHostDrawsAFewAnswersWhateverItsPorts) {
    for (std::uint16_t i = 0; i < 10'000; ++i) {
        receive(i % 2 == 0 ? "Kantivel scan " : "Kantivel sub ", {stranger, i});
        loop.advance(1ms);
    }
    EXPECT_LE(wire.sent.size(), 20U + 5 * 10 + 1);
    EXPECT_GE(wire.sent.size(), 20U + 5 * 10 - 5);
    const SocketAddress neighbour(stranger + 1, 50000);
    receive("Kantivel scan ", neighbour);
    EXPECT_EQ(sentTo(neighbour), 1U) << "others are answered meanwhile";
    // The flooding host itself, from another of its ports, right after.
    const SocketAddress honest(stranger, 50000);
    receive("Kantivel scan ", honest);
    loop.advance(2s);
    EXPECT_EQ(sentTo(honest), 1U);
}

TEST_F(Flood, FromForgedHostsDrawsNoMoreThanAllMayAndEndsWithItsLastDatagram) {
    for (std::uint32_t i = 0; i < 100'000; ++i) {
        receive("Kantivel scan ", {stranger + i, 44188});
        loop.advance(i % 10 == 0 ? 1ms : 0ms);
    }
    EXPECT_LE(wire.sent.size(), 200U + 50 * 10 + 1);
    const SocketAddress honest(0x0A000002, 50000);
    receive("Kantivel scan ", honest);
    loop.advance(100ms);
    EXPECT_EQ(sentTo(honest), 1U) << "the newest is answered first";
    loop.advance(3s);
    forget();
    loop.advance(1h);
    EXPECT_TRUE(wire.sent.empty()) << "who waited in vain is forgotten";
}

TEST_F(Flood, DoesNotKeepAServerFromItsOwnScan) {
    server = make().value();
    forget();
    for (std::uint32_t i = 0; i < 5'000; ++i) {
        receive("Kantivel scan ", {stranger + i, 44188});
        receive("Kantivel scan ", {host->ownAddress, static_cast<std::uint16_t>(i)});
    }
    const std::size_t before = wire.sent.size();
    const SocketAddress own(host->ownAddress, 44188);
    receive("Kantivel scan ", own);
    EXPECT_EQ(wire.sent.size(), before + 1) << "at once";
    EXPECT_EQ(sentTo(own), 1U);
    for (int i = 0; i < 100; ++i) {
        receive("Kantivel scan ", own);
    }
    EXPECT_LT(sentTo(own), 10U) << "but not without end";
}

TEST_F(Flood, OfSubscriptionsLeavesTheSubscribersOfOtherHosts) {
    const SocketAddress honest(0x0A000002, 50000);
    receive("Kantivel sub ", honest);
    for (std::uint16_t i = 0; i < 10'000; ++i) {
        receive("Kantivel sub ", {stranger, i});
    }
    forget();
    server->sendStateToSubscribers();
    EXPECT_EQ(sentTo(honest), 1U);
    EXPECT_EQ(wire.sent.size(), 17U);
    loop.advance(1s);
    for (std::uint32_t i = 0; i < 10'000; ++i) {
        receive("Kantivel sub ", {stranger + i, 1});
    }
    receive("Kantivel sub ", honest);
    forget();
    server->sendStateToSubscribers();
    EXPECT_EQ(wire.sent.size(), 256U);
    EXPECT_EQ(sentTo(honest), 1U) << "the newest has a place";
}

TEST_F(Flood, OfPushesEndsInOneThatTellsTheLastState) {
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

TEST_F(Flood, OfNonsenseLeavesALineOnlyNowAndThen) {
    std::mt19937 random(1);
    for (int i = 0; i < 100'000; ++i) {
        std::string bytes(random() % 40, ' ');
        std::ranges::generate(bytes, [&] { return static_cast<char>(random()); });
        receive(bytes, {stranger + static_cast<std::uint32_t>(i), 1});
        loop.advance(1ms);
    }
    EXPECT_GE(log.size(), 20U);
    EXPECT_LE(log.size(), 20U + 2 * 100 / 10 + 1);
    EXPECT_EQ(log[20].substr(log[20].find(' ')),
              " further datagrams were ignored without a line of their own");
    wire.sendResult = 101;
    log.clear();
    for (int i = 0; i < 1000; ++i) {
        server->broadcastAnnounce();
    }
    EXPECT_EQ(log.size(), 20U);
    EXPECT_EQ(log[0], "Unable to send data, 101");
}

TEST_F(Flood, OfStatesInOneDatagramEndsSomewhere) {
    std::string payload = "{";
    for (int i = 0; i < 1000; ++i) {
        payload += "\"" + std::to_string(i) + "\":{},";
    }
    payload.back() = '}';
    receive("Kantivel state-update " + payload);
    EXPECT_EQ(displays.statesSet.size(), 256U);
}

}  // namespace
}  // namespace tonquil
