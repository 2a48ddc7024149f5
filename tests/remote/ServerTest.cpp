// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/remote/ServerBench.h"
#include "tests/support/Succeeded.h"

namespace tonquil {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;

const SocketAddress peer(0x0A000002, 50000);
const SocketAddress other(0x0A000002, 50001);
const std::string announceStart = R"(Kantivel ann {"guid":"0200abcd0eff","name":"Desk","screens":)";

class Server : public testing::Test, public ServerBench {};

TEST_F(Server, SetsUpStepByStepAndSaysWhichOneFailed) {
    struct Row {
        int broadcast, bind;
        bool watch;
        std::vector<std::string> log, steps;
    };
    const std::string released = "socket released";
    const std::vector<Row> rows{
        {-1, 0, true, {"setsockopt() failed -1"}, {released}},
        {0, 98, true, {"CFSocketSetAddress() failed 98"}, {"bound to 0:50000", released}},
        {0, 0, false, {"CFSocketCreateRunLoopSource failed (nil)"}, {"bound to 0:50000", released}},
        {0,
         0,
         true,
         {"Socket listening on port 50000"},
         {"bound to 0:50000", "watch ended", released}}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.log.front());
        ServerBench bench;
        bench.wire.broadcastResult = row.broadcast;
        bench.wire.bindResult = row.bind;
        bench.wire.canBeWatched = row.watch;
        const bool isMade = bench.make(50000).has_value();
        EXPECT_EQ(isMade, row.log.front().starts_with("Socket"));
        EXPECT_EQ(bench.log, row.log);
        EXPECT_EQ(bench.wire.steps, row.steps);
        ASSERT_EQ(bench.wire.sent.size(), isMade ? 1U : 0U);
        if (isMade) {
            EXPECT_EQ(bench.wire.sent[0].bytes, "Kantivel scan ");
            EXPECT_EQ(bench.wire.sent[0].recipient, SocketAddress(0xFFFFFFFF, 44188));
        }
    }
}

TEST_F(Server, FailsItsSelfTestUnlessAGoodAnnounceComesInTime) {
    struct Row {
        std::chrono::milliseconds time;
        std::string datagram;
        bool isFailure;
    };
    const std::vector<Row> rows{{299ms, R"(Kantivel ann {"name":"A"})", false},
                                {0ms, R"(Kantivel ann {"name":"","screens":7})", false},
                                {301ms, R"(Kantivel ann {"name":"A"})", true},
                                {0ms, R"(Kantivel ann {"name":1})", true},
                                {0ms, R"(Kantivel ann {"guid":"A"})", true},
                                {0ms, R"(Kantivel ann ["name"])", true},
                                {0ms, "Kantivel ann ", true},
                                {0ms, R"(kantivel ann {"name":"A"})", true}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.datagram);
        ServerBench bench;
        bench.server = bench.make().value();
        bench.loop.advance(row.time);
        bench.receive(row.datagram);
        EXPECT_EQ(bench.wire.sent.size(), 1U) << "an announce is never answered";
        bench.loop.advance(10s);
        EXPECT_EQ(bench.displays.failures,
                  row.isFailure ? std::vector<std::uint64_t>{2281} : std::vector<std::uint64_t>{});
    }
}

TEST_F(Server, AnswersDropsOrLogsWhatComesByItsTag) {
    const std::string ann = R"(Kantivel ann {"name":"A"})";
    struct Row {
        std::string bytes;
        bool isAnswered;
        std::vector<std::string> log;
    };
    const std::vector<Row> rows{
        {"Kantivel scan ", true, {}},
        {"Kantivel scan and more", true, {}},
        {std::string("Kantivel scan \0\1", 16), true, {}},
        {"Kantivel sub ", true, {}},
        {"Kantivel sub {", true, {}},
        {"Kantivel scan", false, {"ignored: Kantivel scan"}},
        {"kantivel scan ", false, {"ignored: kantivel scan "}},
        {" Kantivel scan ", false, {"ignored:  Kantivel scan "}},
        {ann, false, {"ignored: " + ann}},
        {"", false, {"ignored: "}},
        {"Kantivel scan \xFF", false, {"ignored: (null)"}},
        {"\xC0\x80", false, {"ignored: (null)"}},
        {"\xED\xA0\x80", false, {"ignored: (null)"}},
        {"\xF4\x90\x80\x80", false, {"ignored: (null)"}},
        {"\xE2\x82", false, {"ignored: (null)"}},
        {"gr\xC3\xBC\xC3\x9F", false, {"ignored: gr\xC3\xBC\xC3\x9F"}},
        {"a\r\nSocket \x1b[2J\xC2\x85\xE2\x80\xA8\x7F",
         false,
         {"ignored: a\\x0d\\x0aSocket \\x1b[2J\\x85\\u2028\\x7f"}},
        {std::string(1023, 'x') + "ü.", false, {"ignored: " + std::string(1023, 'x') + "…"}},
        {"Kantivel state-update [1]", false, {}},
        {"Kantivel state-update \"text\"", false, {}},
        {"Kantivel state-update {", false, {}},
        {"Kantivel state-update ", false, {}},
        {"Kantivel state-update {}\xFF", false, {"ignored: (null)"}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.bytes);
        ServerBench bench;
        bench.start();
        bench.receive(row.bytes, peer);
        ASSERT_EQ(bench.wire.sent.size(), row.isAnswered ? 1U : 0U);
        if (row.isAnswered) {
            EXPECT_EQ(bench.wire.sent[0].recipient, peer);
            EXPECT_TRUE(bench.wire.sent[0].bytes.starts_with(announceStart));
        }
        EXPECT_EQ(bench.log, row.log);
        EXPECT_TRUE(bench.displays.statesSet.empty());

        bench.forget();
        bench.receive(row.bytes, SocketAddress(0xFFFFFFFF, 50000));
        EXPECT_TRUE(bench.wire.sent.empty() && bench.log.empty()) << "from 255.255.255.255";
    }
}

TEST_F(Server, PassesOnTheStatesThatAreObjects) {
    start();
    receive(
        R"(Kantivel state-update {"1-10-21036":{"gamma":[0],"content":7},"b":3,"c":{},"d":[]})");
    using State = std::pair<std::string, PropertyValue>;
    EXPECT_THAT(
        displays.statesSet,
        ElementsAre(State("1-10-21036", {{"gamma", PropertyValue::array({0})}, {"content", 7}}),
                    State("c", PropertyValue::object())));
    EXPECT_TRUE(wire.sent.empty());
    EXPECT_THAT(log, ElementsAre(testing::StartsWith(peer.dottedHost() + " sets the display 1-10"),
                                 testing::EndsWith(" sets the display c")));
    displays.statesSet.clear();
    log.clear();

    // Beyond the bounds of what is parsed, nothing of it is applied.
    const std::vector<std::string> rows{
        R"({"a":{},"b":)" + std::string(20, '[') + std::string(20, ']') + "}",
        R"({"a":{},"b":[)" + std::string(5000, ',') + "]}",
        std::string("{\"a\":{}}\0", 9),
        R"({"a":{"gamma":[1e999]}})",
        std::string(60'000, '['),
    };
    for (const std::string& payload : rows) {
        SCOPED_TRACE(payload.substr(0, 40));
        receive("Kantivel state-update " + payload);
        EXPECT_TRUE(displays.statesSet.empty() && log.empty());
    }
    server->setDataSource(nullptr);
    receive(R"(Kantivel state-update {"a":{}})");
    receive("Kantivel scan ");
    ASSERT_EQ(wire.sent.size(), 1U);
    EXPECT_EQ(wire.sent[0].bytes, announceStart + "{}}") << "no data source, no screens";
}

TEST_F(Server, AnnouncesTheDisplaysAsTheyAreNow) {
    displays.displays = {
        {.referenceID = "b", .gamma = {0, singlePrecision(0.1F)}},
        {.referenceID = "gone"},
        {.referenceID = "a", .gamma = {1}, .content = "colorTargets", .isLocal = true}};
    displays.unknown = "gone";
    host->name = "B\xC3\xBCro\xFF \"1\"";
    start();
    server->broadcastAnnounce();
    forget();
    host->hardware.reset();
    server->broadcastAnnounce();
    ASSERT_EQ(wire.sent.size(), 1U);
    EXPECT_EQ(wire.sent[0].recipient, SocketAddress(0xFFFFFFFF, 48184));
    EXPECT_EQ(
        wire.sent[0].bytes,
        "Kantivel ann {\"guid\":\"0200abcd0eff\",\"name\":\"B\xC3\xBCro\xEF\xBF\xBD \\\"1\\\"\","
        R"("screens":{"a":{"content":"colorTargets","gamma":[1],"local":true,"number":3},)"
        R"("b":{"content":"transparent","gamma":[0,0.1],"local":false,"number":1}}})");
    // JSON has no word for it, so the tag travels alone.
    displays.displays[0].gamma = {0, std::numeric_limits<double>::infinity()};
    server->broadcastAnnounce();
    EXPECT_EQ(wire.sent[1].bytes, "Kantivel ann ");

    // What could not be read at first stays empty, for every server of the process.
    MachineGuid unread;
    FakeHost late;
    late.hardware.reset();
    EXPECT_EQ(unread.text(late), "");
    late.hardware = LocalHost::HardwareAddress{1, 2, 3, 4, 5, 6};
    EXPECT_EQ(unread.text(late), "");
}

TEST_F(Server, TellsEachSubscriberForNinetySeconds) {
    start();
    const auto told = [this] {
        forget();
        server->sendStateToSubscribers();
        std::vector<SocketAddress> recipients;
        for (const auto& datagram : wire.sent) {
            recipients.push_back(datagram.recipient);
        }
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
    EXPECT_THAT(told(), ElementsAre(other)) << "90 s after the second subscription";
    loop.advance(2s);
    EXPECT_THAT(told(), ElementsAre());
}

TEST_F(Server, MayBeReleasedByItsDataSource) {
    const auto release = [this] { server.reset(); };
    server = make().value();
    displays.afterFailure = release;
    loop.advance(300ms);
    EXPECT_EQ(server, nullptr) << "as the answer to a failed self-test";

    start();
    displays.afterSet = release;
    receive(R"(Kantivel state-update {"a":{},"b":{}})");
    EXPECT_EQ(displays.statesSet.size(), 1U);
    displays.afterSet = nullptr;

    start();
    displays.displays.resize(3, {.referenceID = "x"});
    displays.beforeInfo = release;
    receive("Kantivel scan ");
    EXPECT_TRUE(wire.sent.empty());
    displays.beforeInfo = nullptr;

    // Nor does anything come once it is gone, from its self-test or from those who wait.
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

TEST_F(Server, KnowsAddressesByTheirSixteenBytes) {
    const SocketAddress address(0xC0A80142, 48184);
    EXPECT_EQ(address.bytes(),
              (SocketAddress::Bytes{16, 2, 0xBC, 0x38, 192, 168, 1, 0x42, 0, 0, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(TQPlayerServer::_makeRecipientFromString("192.168.1.66"), address);
    for (const char* text : {"", "192.168.1", "192.168.1.256", "host", "1.2.3.4 "}) {
        EXPECT_EQ(TQPlayerServer::_makeRecipientFromString(text), SocketAddress(0xFFFFFFFF, 48184));
    }
}

}  // namespace
}  // namespace tonquil
