// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <map>

#include "cli/Commands.h"
#include "model/TQExtendedGammaCurve.h"
#include "tests/cli/ControlProgram.h"
#include "tests/remote/RemoteDisplays.h"
#include "tests/remote/ServerBench.h"
#include "values/BoundedJson.h"

namespace tonquil {
namespace {

using namespace std::chrono_literals;

/// Sockets that reach each other, in the time of a run loop that is driven by hand.
class MadeUpNetwork {
 public:
    explicit MadeUpNetwork(ManualRunLoop& loop) : _loop(loop) {}

    std::unique_ptr<DatagramSocket> socket(std::uint32_t host) {
        return std::make_unique<Socket>(*this, SocketAddress(host, 0));
    }
    /// Whether a datagram gets lost.
    std::function<bool(std::string_view bytes)> isLost = [](std::string_view) { return false; };
    int sendResult = 0;

 private:
    class Socket final : public DatagramSocket {
     public:
        Socket(MadeUpNetwork& network, const SocketAddress& address)
            : _network(network), _address(address) {}
        int enableBroadcast() override { return 0; }
        int bind(const SocketAddress& address) override {
            const std::uint16_t port = address.port() != 0 ? address.port() : _network._nextPort++;
            _address = SocketAddress(_address.host(), port);
            return 0;
        }
        std::unique_ptr<RunLoop::Handle> receiveOn(RunLoop&, Receiver receiver) override {
            struct Watch final : RunLoop::Handle {
                Watch(MadeUpNetwork& of, const SocketAddress& at) : network(of), address(at) {}
                ~Watch() override { network._receivers.erase(address); }
                MadeUpNetwork& network;
                SocketAddress address;
            };
            _network._receivers[_address] = std::move(receiver);
            return std::make_unique<Watch>(_network, _address);
        }
        int send(std::string_view bytes, const SocketAddress& recipient) override {
            _network._loop.post(
                [&network = _network, source = _address, recipient, text = std::string(bytes)] {
                    network.deliver(text, source, recipient);
                });
            return _network.sendResult;
        }

     private:
        MadeUpNetwork& _network;
        SocketAddress _address;
    };

    void deliver(const std::string& bytes, const SocketAddress& source,
                 const SocketAddress& recipient) {
        if (isLost(bytes)) {
            return;
        }
        const auto receivers = _receivers;
        for (const auto& [address, receiver] : receivers) {
            const bool isForAll = recipient.host() == SocketAddress::broadcastHost;
            if (address.port() == recipient.port() && _receivers.contains(address) &&
                (isForAll || address.host() == recipient.host())) {
                receiver(bytes, source);
            }
        }
    }

    ManualRunLoop& _loop;
    std::map<SocketAddress, DatagramSocket::Receiver> _receivers;
    std::uint16_t _nextPort = 50000;
};

constexpr std::uint32_t deskHost = 0x0A000001;
constexpr std::uint32_t bureauHost = 0x0A000002;

/// tonquilctl and two servers, on a network of their own and a port of their own.
class RemoteCommands : public testing::Test {
 protected:
    RemoteCommands() {
        desk->name = "Desk\t\x1b[2J";
        bureau->name = "B\xC3\xBCro";
        // The servers' self-tests are over.
        loop.advance(1s);
    }

    std::unique_ptr<TQPlayerServer> serve(std::uint32_t host, std::shared_ptr<FakeHost> named,
                                          MachineGuid& guid, RemoteDisplays& displays) {
        auto server = TQPlayerServer::initWithUDPPort(
                          {.runLoop = loop,
                           .openSocket = [this, host]() -> Result<std::unique_ptr<DatagramSocket>> {
                               return network.socket(host);
                           },
                           .host = std::move(named),
                           .guid = guid,
                           .log = {}},
                          port)
                          .value();
        server->setDataSource(&displays);
        return server;
    }

    /// The sentence of a failure, or nothing.
    std::string run(const Arguments& arguments) {
        out.clear();
        const RemoteAccess access{
            .runLoop = loop,
            .run =
                [this] {
                    isStopped = false;
                    while (!isStopped) {
                        loop.advance(10ms);
                    }
                },
            .stop = [this] { isStopped = true; },
            .openSocket = [this]() -> Result<std::unique_ptr<DatagramSocket>> {
                return network.socket(0x0A000003);
            },
            .lookUpHost = [](const std::string& name) -> Result<std::uint32_t> {
                return name == "desk" ? deskHost : bureauHost + (name == "nobody" ? 7 : 0);
            },
            .printNow =
                [this](const std::string& text) {
                    out += text;
                    return true;
                },
            .port = port};
        std::string notes;
        const auto result = runCommand(
            arguments,
            {.openDisplays = {}, .logged = notes, .out = out, .remote = access, .notes = notes});
        return result ? "" : result.error().sentence;
    }
    [[nodiscard]] static Arguments set(const std::string& id) {
        return {.command = Arguments::Command::remoteSet, .host = "desk", .referenceID = id};
    }

    static constexpr std::uint16_t port = 40000;
    ManualRunLoop loop;
    MadeUpNetwork network{loop};
    bool isStopped = false;
    std::string out;
    std::shared_ptr<FakeHost> desk = std::make_shared<FakeHost>();
    std::shared_ptr<FakeHost> bureau = std::make_shared<FakeHost>();
    MachineGuid deskGuid, bureauGuid;
    RemoteDisplays deskDisplays{{{.referenceID = "9-9-9", .gamma = {1, singlePrecision(0.1F)}},
                                 {.referenceID = "1-2-3",
                                  .gamma = {0, 0, singlePrecision(1.2F)},
                                  .content = "colorTargets",
                                  .isLocal = true}}};
    RemoteDisplays bureauDisplays;
    std::unique_ptr<TQPlayerServer> deskServer = serve(deskHost, desk, deskGuid, deskDisplays);
    std::unique_ptr<TQPlayerServer> bureauServer =
        serve(bureauHost, bureau, bureauGuid, bureauDisplays);
};

TEST_F(RemoteCommands, ScanListsEveryServerHeard) {
    // The first question gets lost on its way.
    network.isLost = [lost = false](std::string_view) mutable {
        return !std::exchange(lost, true);
    };
    EXPECT_EQ(run({.command = Arguments::Command::remoteScan}), "");
    EXPECT_EQ(out,
              "10.0.0.1\tDesk\\x09\\x1b[2J\t0200abcd0eff\n"
              "\t1\t9-9-9\tunique\ttransparent\t[1.0,0.1]\n"
              "\t2\t1-2-3\tlocal\tcolorTargets\t[0.0,0.0,1.2]\n"
              "10.0.0.2\tB\xC3\xBCro\t0200abcd0eff\n");
    EXPECT_EQ(run({.command = Arguments::Command::remoteScan, .json = true, .host = "desk"}), "");
    const auto list = readBoundedJson(out).value();
    ASSERT_EQ(list.size(), 1U);
    EXPECT_EQ(list[0]["address"], "10.0.0.1");
    EXPECT_EQ(list[0]["name"], desk->name);
    EXPECT_EQ(list[0]["screens"][1], (PropertyValue{{"referenceID", "1-2-3"},
                                                    {"number", 2},
                                                    {"local", true},
                                                    {"content", "colorTargets"},
                                                    {"gamma", {0.0, 0.0, 1.2}}}));
    EXPECT_EQ(out.find('\x1b'), std::string::npos);

    network.isLost = [](std::string_view) { return true; };
    EXPECT_EQ(run({.command = Arguments::Command::remoteScan}),
              "No server answers on this network.");
    network.sendResult = 101;
    EXPECT_EQ(run({.command = Arguments::Command::remoteScan}),
              "Nothing can be sent to the network.");
}

TEST_F(RemoteCommands, GetPrintsWhatGoesBackIntoACurve) {
    // Somebody else is faster with an answer.
    const auto stranger = network.socket(bureauHost);
    network.isLost = [&](std::string_view bytes) {
        const SocketAddress companion(0x0A000003, 50000);
        if (bytes.starts_with("Kantivel scan ")) {
            EXPECT_EQ(stranger->send("Kantivel ann {\"name\":\"\",\"screens\":{}}", companion), 0);
        }
        return false;
    };
    EXPECT_EQ(run({.command = Arguments::Command::remoteGet, .host = "desk"}), "");
    EXPECT_EQ(out,
              "1\t9-9-9\tunique\ttransparent\t[1.0,0.1]\n"
              "2\t1-2-3\tlocal\tcolorTargets\t[0.0,0.0,1.2]\n");
    Arguments one{.command = Arguments::Command::remoteGet, .host = "desk", .referenceID = "1-2-3"};
    EXPECT_EQ(run(one), "");
    EXPECT_EQ(out, "[0.0,0.0,1.2]\n");
    one.referenceID = "1-2-4";
    EXPECT_EQ(run(one), "No display of desk has the reference ID 1-2-4.");
    one.host = "nobody";
    EXPECT_EQ(run(one), "No server answers on nobody.");
}

TEST_F(RemoteCommands, SetIsConfirmedByWhatTheServerAnnouncesThen) {
    Arguments arguments = set("9-9-9");
    arguments.curve = "[0,0.3,1.7]";
    // What the display becomes in the end is what was computed from the same curve here.
    const PropertyValue curve =
        TQExtendedGammaCurve::gammaCurveWithCompactArray({0, 0.3, 1.7})->gammaCurveCompactArray();
    EXPECT_EQ(run(arguments), "");
    ASSERT_EQ(deskDisplays.statesSet.size(), 1U);
    EXPECT_FALSE(deskDisplays.statesSet[0].second.contains("content"));
    EXPECT_EQ(deskDisplays.displays[0].gamma.dump(),
              "[0.0,0.3,1.7,1.0,0.0,1.0,1.0,0.0,1.0,1.0,0.0,1.0,1.0]");
    EXPECT_EQ(deskDisplays.displays[0].content, "transparent");

    // From a file, and for the one display of several.
    for (const PropertyValue& file :
         {TQExtendedGammaCurve::gammaCurveWithCompactArray({1, 0.2})->gammaCurveDictionary(),
          PropertyValue{{"Format", 1},
                        {"Screens",
                         {{"9-9-9", TQExtendedGammaCurve::gammaCurveWithCompactArray({1, 0.4})
                                        ->gammaCurveDictionary()}}}}}) {
        arguments = set("9-9-9");
        arguments.file = propertyListFile(file);
        EXPECT_EQ(run(arguments), "");
    }
    EXPECT_EQ(deskDisplays.displays[0].gamma[1], 0.4);
    Arguments content = set("1-2-3");
    content.content = "grayscaleTargets";
    EXPECT_EQ(run(content), "");
    EXPECT_EQ(deskDisplays.displays[1].content, "grayscaleTargets");
    EXPECT_EQ(deskDisplays.displays[1].gamma.dump(), "[0.0,0.0,1.2]") << "the curve stays";
    arguments.referenceID = "1-2-3";
    EXPECT_EQ(run(arguments), "The file has no curve for the display 1-2-3.");
    arguments.file = fileWith(std::string(768, 'x'));
    EXPECT_EQ(run(arguments), "A raw table cannot be sent: only curves of 13 numbers travel.");
}

TEST_F(RemoteCommands, SetThatDidNotTakeIsAFailure) {
    Arguments arguments = set("1-2-3");
    arguments.curve = "[0,0,1.2]";
    deskDisplays.isStubborn = true;
    EXPECT_EQ(run(arguments), "The display 1-2-3 of desk did not take it.") << "13 numbers, not 3";
    deskDisplays.isStubborn = false;
    network.isLost = [](std::string_view bytes) {
        return bytes.starts_with("Kantivel state-update ");
    };
    EXPECT_EQ(run(arguments), "The display 1-2-3 of desk did not take it.");
    network.isLost = [](std::string_view) { return false; };
    EXPECT_EQ(run(arguments), "");
    arguments.content = "colorTargets";
    EXPECT_EQ(run(arguments), "") << "which it shows already";
    EXPECT_EQ(run(set("7-7-7")), "No display of desk has the reference ID 7-7-7.");
}

TEST_F(RemoteCommands, WatchPrintsEachChangeAndNeverLetsTheSubscriptionEnd) {
    const auto change = [&](float number) {
        deskDisplays.displays[0].gamma[1] = singlePrecision(number);
        deskServer->sendStateToSubscribers();
    };
    const std::array timers{loop.callOnce(10s, [&] { deskServer->sendStateToSubscribers(); }),
                            loop.callOnce(20s, [&] { change(0.2F); }),
                            // After the first subscription would have ended.
                            loop.callOnce(93s, [&] { change(0.3F); }),
                            loop.callOnce(94s, [&] { isStopped = true; })};
    EXPECT_EQ(run({.command = Arguments::Command::remoteWatch, .host = "desk"}), "");
    EXPECT_EQ(std::ranges::count(out, '\n'), 3) << out;
    EXPECT_TRUE(out.starts_with("{\"address\":\"10.0.0.1\",")) << out;
    EXPECT_NE(out.find("[1.0,0.3]"), std::string::npos);
}

}  // namespace
}  // namespace tonquil
