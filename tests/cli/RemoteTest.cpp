// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <algorithm>
#include <array>

#include "cli/Commands.h"
#include "model/TQExtendedGammaCurve.h"
#include "tests/cli/ControlProgram.h"
#include "tests/remote/ServerBench.h"
#include "values/BoundedJson.h"

namespace tonquil {
namespace {

using namespace std::chrono_literals;

const SocketAddress desk(0x0A000001, remote::serverPort);
const SocketAddress bureau(0x0A000002, remote::serverPort);
const SocketAddress companion(0x0A000003, 50000);

/// tonquilctl and a server, which reach each other in the time of a run loop driven by hand.
class RemoteCommands : public testing::Test {
 protected:
    RemoteCommands() {
        bench.host->name = "Desk\t\x1b[2J";
        bench.displays.displays = {{.referenceID = "9-9-9", .gamma = {1, singlePrecision(0.1F)}},
                                   {.referenceID = "1-2-3",
                                    .gamma = {0, 0, singlePrecision(1.2F)},
                                    .content = "colorTargets",
                                    .isLocal = true}};
        bench.start();
    }

    /// Brings the datagrams to their recipients. Another server is always faster with an answer.
    void deliver() {
        for (const auto& [bytes, recipient] : std::exchange(client.sent, {})) {
            const bool isForAll =
                recipient == SocketAddress(SocketAddress::broadcastHost, remote::serverPort);
            if (isLost(bytes) || !(isForAll || recipient == desk)) {
                continue;
            }
            client.receiver("Kantivel ann {\"name\":\"B\xC3\xBCro\",\"screens\":{}}", bureau);
            bench.receive(bytes, companion);
        }
        for (const auto& [bytes, recipient] : std::exchange(bench.wire.sent, {})) {
            if (recipient == companion) {
                client.receiver(bytes, desk);
            }
        }
    }

    /// The sentence of a failure, or nothing.
    std::string run(const Arguments& arguments) {
        out.clear();
        const RemoteAccess access{
            .runLoop = bench.loop,
            .run =
                [this] {
                    for (isStopped = false; !isStopped; bench.loop.advance(10ms)) {
                        deliver();
                    }
                },
            .stop = [this] { isStopped = true; },
            .openSocket = [this]() -> Result<std::unique_ptr<DatagramSocket>> {
                return std::make_unique<FakeSocket>(client);
            },
            .lookUpHost = [](const std::string& name) -> Result<std::uint32_t> {
                return name == "desk" ? desk.host() : 0x0A000009;
            },
            .printNow =
                [this](const std::string& text) {
                    out += text;
                    return true;
                }};
        std::string notes;
        const auto result = runCommand(
            arguments,
            {.openDisplays = {}, .logged = notes, .out = out, .remote = access, .notes = notes});
        return result ? "" : result.error().sentence;
    }
    [[nodiscard]] static Arguments set(const std::string& id) {
        return {.command = Arguments::Command::remoteSet, .host = "desk", .referenceID = id};
    }
    [[nodiscard]] RemoteDisplays::Display& display(std::size_t index) {
        return bench.displays.displays[index];
    }

    ServerBench bench;
    Wire client;
    /// Whether a datagram of the client gets lost.
    std::function<bool(std::string_view bytes)> isLost = [](std::string_view) { return false; };
    bool isStopped = false;
    std::string out;
};

TEST_F(RemoteCommands, ScanListsEveryServerHeard) {
    // The first question gets lost on its way.
    isLost = [lost = false](std::string_view) mutable { return !std::exchange(lost, true); };
    EXPECT_EQ(run({.command = Arguments::Command::remoteScan}), "");
    EXPECT_EQ(out,
              "10.0.0.1\tDesk\\x09\\x1b[2J\t0200abcd0eff\n"
              "\t1\t9-9-9\tunique\ttransparent\t[1.0,0.1]\n"
              "\t2\t1-2-3\tlocal\tcolorTargets\t[0.0,0.0,1.2]\n"
              "10.0.0.2\tB\xC3\xBCro\t\n");
    EXPECT_EQ(run({.command = Arguments::Command::remoteScan, .json = true, .host = "desk"}), "");
    const auto list = readBoundedJson(out).value();
    ASSERT_EQ(list.size(), 1U);
    EXPECT_EQ(list[0]["address"], "10.0.0.1");
    EXPECT_EQ(list[0]["name"], bench.host->name);
    EXPECT_EQ(list[0]["screens"][1].dump(),
              R"({"content":"colorTargets","gamma":[0.0,0.0,1.2],"local":true,"number":2,)"
              R"("referenceID":"1-2-3"})");
    EXPECT_EQ(out.find('\x1b'), std::string::npos);

    isLost = [](std::string_view) { return true; };
    EXPECT_EQ(run({.command = Arguments::Command::remoteScan}),
              "No server answers on this network.");
    client.sendResult = 101;
    EXPECT_EQ(run({.command = Arguments::Command::remoteScan}),
              "Nothing can be sent to the network.");
}

TEST_F(RemoteCommands, GetPrintsWhatGoesBackIntoACurve) {
    Arguments get{.command = Arguments::Command::remoteGet, .host = "desk", .referenceID = "1-2-3"};
    EXPECT_EQ(run(get), "");
    EXPECT_EQ(out, "[0.0,0.0,1.2]\n");
    get.referenceID = "1-2-4";
    EXPECT_EQ(run(get), "No display of desk has the reference ID 1-2-4.");
    get.host = "nobody";
    EXPECT_EQ(run(get), "No server answers on nobody.");
}

TEST_F(RemoteCommands, SetIsConfirmedByWhatTheServerThenAnnounces) {
    Arguments arguments = set("9-9-9");
    arguments.curve = "[0,0.3,1.7]";
    EXPECT_EQ(run(arguments), "");
    ASSERT_EQ(bench.displays.statesSet.size(), 1U);
    EXPECT_FALSE(bench.displays.statesSet[0].second.contains("content"));
    EXPECT_EQ(display(0).gamma.dump(), "[0.0,0.3,1.7,1.0,0.0,1.0,1.0,0.0,1.0,1.0,0.0,1.0,1.0]");

    arguments = set("1-2-3");
    const auto other = TQExtendedGammaCurve::gammaCurveWithCompactArray({1, 0.4});
    arguments.file =
        propertyListFile({{"Format", 1}, {"Screens", {{"9-9-9", other->gammaCurveDictionary()}}}});
    EXPECT_EQ(run(arguments), "The file has no curve for the display 1-2-3.");
    arguments.referenceID = "9-9-9";
    EXPECT_EQ(run(arguments), "");
    EXPECT_EQ(display(0).gamma[1], 0.4);
    arguments.file = fileWith(std::string(768, 'x'));
    EXPECT_EQ(run(arguments), "A raw table cannot be sent: only curves of 13 numbers travel.");
    Arguments content = set("1-2-3");
    content.content = "grayscaleTargets";
    EXPECT_EQ(run(content), "");
    EXPECT_EQ(display(1).content, "grayscaleTargets");
    EXPECT_EQ(display(1).gamma.dump(), "[0.0,0.0,1.2]") << "the curve stays";
}

TEST_F(RemoteCommands, SetFailsWhereTheDisplayDidNotTakeIt) {
    Arguments arguments = set("1-2-3");
    arguments.curve = "[0,0,1.2]";
    bench.displays.isStubborn = true;
    EXPECT_EQ(run(arguments), "The display 1-2-3 of desk did not take it.") << "13 numbers, not 3";
    bench.displays.isStubborn = false;
    isLost = [](std::string_view bytes) { return bytes.starts_with("Kantivel state-update "); };
    EXPECT_EQ(run(arguments), "The display 1-2-3 of desk did not take it.");
    isLost = [](std::string_view) { return false; };
    EXPECT_EQ(run(arguments), "");
}

TEST_F(RemoteCommands, WatchPrintsEachChangeAndRenewsItsSubscription) {
    const auto change = [&](float number) {
        display(0).gamma[1] = singlePrecision(number);
        bench.server->sendStateToSubscribers();
    };
    const std::array timers{
        bench.loop.callOnce(10s, [&] { bench.server->sendStateToSubscribers(); }),
        bench.loop.callOnce(20s, [&] { change(0.2F); }),
        // After the first subscription would have ended.
        bench.loop.callOnce(93s, [&] { change(0.3F); }),
        bench.loop.callOnce(94s, [&] { isStopped = true; })};
    EXPECT_EQ(run({.command = Arguments::Command::remoteWatch, .host = "desk"}), "");
    EXPECT_EQ(std::ranges::count(out, '\n'), 3) << out;
    EXPECT_TRUE(out.starts_with("{\"address\":\"10.0.0.1\",")) << out;
    EXPECT_NE(out.find("[1.0,0.3]"), std::string::npos);
}

}  // namespace
}  // namespace tonquil
