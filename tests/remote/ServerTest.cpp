// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/remote/ServerBench.h"

namespace tonquil {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;

const SocketAddress peer(0x0A000002, 50000);
const SocketAddress other(0x0A000002, 50001);
const std::string announceStart = R"(Kantivel ann {"guid":"0200abcd0eff","name":"Desk","screens":)";

class Server : public testing::Test, public ServerBench {};

TEST_F(Server, SetsUpInStepsAndReportsTheFailedOne) {
    wire.broadcastResult = -1;
    EXPECT_FALSE(make(50000));
    wire.broadcastResult = 0;
    wire.bindResult = 98;
    EXPECT_FALSE(make(50000));
    wire.bindResult = 0;
    wire.canBeWatched = false;
    EXPECT_FALSE(make(50000));
    EXPECT_TRUE(wire.sent.empty());
    wire.canBeWatched = true;
    EXPECT_TRUE(make(50000));
    EXPECT_THAT(log, ElementsAre("setsockopt() failed -1", "CFSocketSetAddress() failed 98",
                                 "CFSocketCreateRunLoopSource failed (nil)",
                                 "Socket listening on port 50000"));
    EXPECT_EQ(wire.bound, SocketAddress(0, 50000));
    EXPECT_EQ(wire.sent.at(0).bytes, "Kantivel scan ");
    EXPECT_EQ(wire.sent[0].recipient, SocketAddress(0xFFFFFFFF, 44188)) << "not its own port";
}

TEST_F(Server, FailsSelfTestWithoutValidAnnounceInTime) {
    const auto failuresAfter = [](std::chrono::milliseconds time, const std::string& payload) {
        ServerBench bench;
        bench.server = bench.make().value();
        bench.loop.advance(time);
        bench.receive("Kantivel ann " + payload);
        EXPECT_EQ(bench.wire.sent.size(), 1U) << "an announce is never answered";
        bench.loop.advance(10s);
        return bench.displays.failures;
    };
    EXPECT_THAT(failuresAfter(299ms, R"({"name":"A"})"), ElementsAre());
    EXPECT_THAT(failuresAfter(0ms, R"({"name":"","screens":7})"), ElementsAre());
    EXPECT_THAT(failuresAfter(301ms, R"({"name":"A"})"), ElementsAre(2281));
    for (const char* payload : {R"({"name":1})", R"({"guid":"A"})", R"(["name"])"}) {
        EXPECT_THAT(failuresAfter(0ms, payload), ElementsAre(2281)) << payload;
    }
}

TEST_F(Server, AnswersDropsOrLogsDatagramsByTag) {
    const std::string longText(1023, 'x');
    // The datagram and the expected log line; "answered" for an answer without a log line.
    const std::vector<std::pair<std::string, std::string>> rows{
        {"Kantivel scan and more", "answered"},
        {std::string("Kantivel scan \0\1", 16), "answered"},
        {"Kantivel sub {", "answered"},
        {"Kantivel scan", "ignored: Kantivel scan"},
        {" Kantivel scan ", "ignored:  Kantivel scan "},
        {"Kantivel ann {}", "ignored: Kantivel ann {}"},
        {"", "ignored: "},
        // Invalid UTF-8: overlong, a surrogate, beyond the last character, and truncated.
        {"Kantivel scan \xC0\x80", "ignored: (null)"},
        {"\xED\xA0\x80", "ignored: (null)"},
        {"\xF4\x90\x80\x80", "ignored: (null)"},
        {"\xE2\x82", "ignored: (null)"},
        {"\xC3\x9F\r\n\x1b[2J\xC2\x85\xE2\x80\xA8\x7F",
         "ignored: \xC3\x9F\\x0d\\x0a\\x1b[2J\\x85\\u2028\\x7f"},
        {longText + "ü.", "ignored: " + longText + "…"},
    };
    for (const auto& [bytes, line] : rows) {
        SCOPED_TRACE(bytes);
        const bool isAnswered = line == "answered";
        start();
        receive(bytes, peer);
        ASSERT_EQ(wire.sent.size(), isAnswered ? 1U : 0U);
        if (isAnswered) {
            EXPECT_EQ(wire.sent[0].recipient, peer);
            EXPECT_TRUE(wire.sent[0].bytes.starts_with(announceStart));
        }
        EXPECT_EQ(log, isAnswered ? std::vector<std::string>() : std::vector{line});
        forget();
        for (const std::uint32_t everybody : {0xFFFFFFFFU, host->broadcastAddress}) {
            receive(bytes, SocketAddress(everybody, 50000));
            EXPECT_TRUE(wire.sent.empty() && log.empty()) << "an answer would reach everybody";
        }
    }
}

TEST_F(Server, ForwardsStatesThatAreObjects) {
    start();
    receive(R"(Kantivel state-update {"1-1":{"gamma":[0],"content":7},"b":3,"c":{},"d":[]})");
    EXPECT_EQ(PropertyValue(displays.statesSet),
              PropertyValue::parse(R"([["1-1",{"gamma":[0],"content":7}],["c",{}]])"));
    EXPECT_TRUE(wire.sent.empty());
    EXPECT_THAT(log, ElementsAre("10.0.0.2 sets the display 1-1", "10.0.0.2 sets the display c"));
    displays.statesSet.clear();
    log.clear();

    // Beyond the parser's bounds, nothing is applied.
    for (const std::string& payload :
         {R"({"a":{},"b":)" + std::string(20, '[') + std::string(20, ']') + "}",
          R"({"a":{},"b":[)" + std::string(5000, ',') + "]}", std::string("{\"a\":{}}\0", 9),
          std::string("[1]"), std::string("{"), std::string(R"({"a":{"gamma":[1e999]}})"),
          std::string(60'000, '[')}) {
        SCOPED_TRACE(payload.substr(0, 40));
        receive("Kantivel state-update " + payload);
        EXPECT_TRUE(displays.statesSet.empty() && log.empty());
    }
    std::string many = R"(Kantivel state-update {"a":{})";
    for (int i = 0; i < 1000; ++i) {
        many += ",\"" + std::to_string(i) + "\":{}";
    }
    receive(many + "}");
    EXPECT_EQ(displays.statesSet.size(), 256U);
    server->setDataSource(nullptr);
    receive(R"(Kantivel state-update {"a":{}})");
    receive("Kantivel scan ");
    ASSERT_EQ(wire.sent.size(), 1U);
    EXPECT_EQ(wire.sent[0].bytes, announceStart + "{}}") << "no data source, no screens";
}

TEST_F(Server, AnnouncesCurrentDisplays) {
    displays.displays = {
        {.referenceID = "b", .gamma = {0, singlePrecision(0.1F)}},
        {.referenceID = "gone"},
        {.referenceID = "a", .gamma = {1}, .content = "colorTargets", .isLocal = true}};
    host->name = "B\xC3\xBCro\xFF \"1\"";
    start();
    server->broadcastAnnounce();
    host->hardware.reset();
    server->broadcastAnnounce();
    ASSERT_EQ(wire.sent.size(), 2U);
    EXPECT_THAT(wire.sent[1].recipient.bytes(),
                ElementsAre(16, 2, 0xBC, 0x38, 255, 255, 255, 255, 0, 0, 0, 0, 0, 0, 0, 0));
    EXPECT_EQ(
        wire.sent[1].bytes,
        "Kantivel ann {\"guid\":\"0200abcd0eff\",\"name\":\"B\xC3\xBCro\xEF\xBF\xBD \\\"1\\\"\","
        R"("screens":{"a":{"content":"colorTargets","gamma":[1],"local":true,"number":3},)"
        R"("b":{"content":"transparent","gamma":[0,0.1],"local":false,"number":1}}})");
    // JSON cannot represent it, so the tag is sent alone.
    displays.displays[0].gamma = {0, std::numeric_limits<double>::infinity()};
    server->broadcastAnnounce();
    EXPECT_EQ(wire.sent[2].bytes, "Kantivel ann ");
}

TEST_F(Server, PushesToSubscribersForNinetySeconds) {
    start();
    const auto told = [this] {
        forget();
        server->sendStateToSubscribers();
        std::vector<SocketAddress> recipients(wire.sent.size());
        std::ranges::transform(wire.sent, recipients.begin(), &Wire::Datagram::recipient);
        return recipients;
    };
    EXPECT_THAT(told(), ElementsAre());
    EXPECT_EQ(displays.infosAsked, 0) << "nobody to tell, nothing to ask";
    receive("Kantivel sub ", peer);
    receive("Kantivel sub ", peer);
    loop.advance(80s);
    receive("Kantivel sub ", other);
    EXPECT_THAT(told(), testing::UnorderedElementsAre(peer, other));
    EXPECT_EQ(displays.infosAsked, 4) << "one announce, built once, for both";
    loop.advance(10s);
    EXPECT_EQ(told().size(), 2U) << "the time is up only after its end";
    loop.advance(1ms);
    EXPECT_THAT(told(), ElementsAre(other));
    receive("Kantivel sub ", other);
    loop.advance(89s);
    EXPECT_THAT(told(), ElementsAre(other)) << "a subscription renews itself";
}

TEST_F(Server, MayBeDestroyedByItsDataSource) {
    const auto release = [this] { server.reset(); };
    server = make().value();
    displays.afterFailure = release;
    loop.advance(300ms);
    EXPECT_EQ(server, nullptr) << "as the answer to a failed self-test";

    start();
    displays.afterSet = release;
    receive(R"(Kantivel state-update {"a":{},"b":{}})");
    EXPECT_EQ(displays.statesSet.size(), 1U);

    start();
    displays.displays.resize(3, {.referenceID = "x"});
    displays.beforeInfo = release;
    receive("Kantivel scan ");
    EXPECT_TRUE(wire.sent.empty());
    displays.beforeInfo = [] {};

    // After destruction nothing more happens, neither from the self-test nor for waiting
    // recipients.
    server = make().value();
    for (int i = 0; i < 300; ++i) {
        receive("Kantivel scan ");
    }
    server.reset();
    displays.failures.clear();
    forget();
    loop.advance(10s);
    EXPECT_TRUE(displays.failures.empty() && wire.sent.empty() && log.empty());
}

}  // namespace
}  // namespace tonquil
