// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "cli/Commands.h"
#include "tests/cli/ControlProgram.h"
#include "tests/remote/ServerBench.h"

namespace tonquil {
namespace {

const SocketAddress desk(0x0A000001, remote::serverPort);
const SocketAddress companion(0x0A000003, 50000);

/// tonquilctl and a server, connected through a run loop that the test drives.
class RemoteCommands : public testing::Test, public ServerBench {
 protected:
    RemoteCommands() {
        host->name = "Desk\t\x1b[2J";
        displays.displays = {{.referenceID = "9-9-9", .gamma = {1, singlePrecision(0.1F)}},
                             {"1-2-3", {0, 0, singlePrecision(1.2F)}, "colorTargets", true}};
        start();
    }
    /// Delivers the datagrams. Another server always answers first.
    void deliver() {
        for (const auto& [bytes, recipient] : std::exchange(client.sent, {})) {
            const bool isForAll = recipient.host() == SocketAddress::broadcastHost;
            if (!isLost(bytes) && (isForAll || recipient == desk)) {
                client.receiver("Kantivel ann {\"name\":\"B\xC3\xBCro\",\"screens\":{}}",
                                SocketAddress(0x0A000002, remote::serverPort));
                receive(bytes, companion);
            }
        }
        for (const auto& [bytes, recipient] : std::exchange(wire.sent, {})) {
            if (recipient == companion) {
                client.receiver(bytes, desk);
            }
        }
    }
    /// The output, or the sentence of a failure.
    std::string run(const Arguments& arguments) {
        std::string out;
        std::string notes;
        bool isStopped = false;
        const RemoteAccess access{
            .runLoop = loop,
            .run =
                [&] {
                    for (isStopped = false; !isStopped;) {
                        deliver();
                        loop.advance(std::chrono::milliseconds(10));
                    }
                },
            .stop = [&] { isStopped = true; },
            .openSocket = [&] { return std::make_unique<FakeSocket>(client); },
            .lookUpHost = [](const std::string& name) { return name == "desk" ? desk.host() : 9; },
            .printNow = {}};
        const auto result = runCommand(
            arguments,
            {.openDisplays = {}, .logged = notes, .out = out, .remote = access, .notes = notes});
        return result ? out : result.error().sentence;
    }

    Wire client;
    /// Whether a datagram of the client gets lost.
    std::function<bool(std::string_view bytes)> isLost = [](std::string_view) { return false; };
    Arguments set{.command = Arguments::Command::remoteSet, .host = "desk", .referenceID = "1-2-3"};
};

TEST_F(RemoteCommands, ScanListsEveryServerAndGetQueriesOne) {
    // The first request gets lost.
    isLost = [lost = false](std::string_view) mutable { return !std::exchange(lost, true); };
    EXPECT_EQ(run({.command = Arguments::Command::remoteScan}),
              "10.0.0.1\tDesk\\x09\\x1b[2J\t0200abcd0eff\n"
              "\t1\t9-9-9\tunique\ttransparent\t[1.0,0.1]\n"
              "\t2\t1-2-3\tlocal\tcolorTargets\t[0.0,0.0,1.2]\n"
              "10.0.0.2\tB\xC3\xBCro\t\n");
    Arguments get{.command = Arguments::Command::remoteGet, .host = "desk", .referenceID = "1-2-3"};
    EXPECT_EQ(run(get), "[0.0,0.0,1.2]\n");
    get.referenceID = "1-2-4";
    EXPECT_EQ(run(get), "No display of desk has the reference ID 1-2-4.");
    get.host = "nobody";
    EXPECT_EQ(run(get), "No server answers on nobody.");
}

TEST_F(RemoteCommands, SetIsConfirmedByNextAnnounce) {
    set.content = "grayscaleTargets";
    EXPECT_EQ(run(set), "");
    EXPECT_EQ(displays.displays[1].content, "grayscaleTargets");
    EXPECT_EQ(displays.displays[1].gamma.dump(), "[0.0,0.0,1.2]") << "the curve stays";
    set.content.reset();
    set.file = fileWith(std::string(768, 'x'));
    EXPECT_EQ(run(set), "");
    EXPECT_EQ(displays.displays[1].gamma.dump(),
              "[0.0,0.46875,1.0,0.46875,0.0,1.0,1.0,0.0,1.0,1.0,0.0,1.0,1.0]")
        << "the curve closest to the table";
    set.file = propertyListFile({{"Format", 1}, {"Screens", {{"9-9-9", {{"BlackPoint", 1}}}}}});
    EXPECT_EQ(run(set), "The file has no curve for the display 1-2-3.");
    set.file.reset();
    set.curve = "[0,0.3,1.7]";
    for (const bool isStubborn : {true, false}) {
        displays.isStubborn = isStubborn;
        isLost = [=](std::string_view bytes) {
            return !isStubborn && bytes.starts_with("Kantivel state-update ");
        };
        EXPECT_EQ(run(set), "The display 1-2-3 of desk did not take it.");
    }
    isLost = [](std::string_view) { return false; };
    EXPECT_EQ(run(set), "");
    EXPECT_EQ(displays.displays[1].gamma.dump(),
              "[0.0,0.3,1.7,1.0,0.0,1.0,1.0,0.0,1.0,1.0,0.0,1.0,1.0]");
    EXPECT_FALSE(displays.statesSet.back().second.contains("content"));
}

}  // namespace
}  // namespace tonquil
