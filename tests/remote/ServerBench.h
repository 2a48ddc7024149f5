// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "remote/TQPlayerServer.h"
#include "tests/remote/PlainDisplays.h"
#include "tests/support/ManualRunLoop.h"

namespace tonquil {

/// The calls a socket received, and its answers.
struct Wire {
    struct Datagram {
        std::string bytes;
        SocketAddress recipient;
    };
    std::vector<Datagram> sent;
    std::optional<SocketAddress> bound;
    DatagramSocket::Receiver receiver;
    int broadcastResult = 0;
    int bindResult = 0;
    int sendResult = 0;
    bool canBeWatched = true;
};

/// A socket without a network.
class FakeSocket final : public DatagramSocket {
 public:
    explicit FakeSocket(Wire& wire) : _wire(wire) {}

    int enableBroadcast() override { return _wire.broadcastResult; }
    int bind(const SocketAddress& address) override {
        _wire.bound = address;
        return _wire.bindResult;
    }
    std::unique_ptr<RunLoop::Handle> receiveOn(RunLoop&, Receiver receiver) override {
        _wire.receiver = std::move(receiver);
        return _wire.canBeWatched ? std::make_unique<RunLoop::Handle>() : nullptr;
    }
    int send(std::string_view bytes, const SocketAddress& recipient) override {
        _wire.sent.push_back({std::string(bytes), recipient});
        return _wire.sendResult;
    }

 private:
    Wire& _wire;
};

/// A computer with answers chosen by the test.
class FakeHost final : public LocalHost {
 public:
    [[nodiscard]] std::string localizedName() const override { return name; }
    [[nodiscard]] std::optional<HardwareAddress> hardwareAddress() const override {
        return hardware;
    }
    [[nodiscard]] bool hasAddress(std::uint32_t host) const override { return host == ownAddress; }
    [[nodiscard]] bool isBroadcastAddress(std::uint32_t host) const override {
        return host == broadcastAddress;
    }

    std::string name = "Desk";
    std::optional<HardwareAddress> hardware = HardwareAddress{0x02, 0, 0xAB, 0xCD, 0x0E, 0xFF};
    std::uint32_t ownAddress = 0x0A000001;
    std::uint32_t broadcastAddress = 0x0A0000FF;
};

/// A server on a simulated network with a stopped clock.
class ServerBench {
 public:
    Result<std::unique_ptr<TQPlayerServer>> make(std::uint16_t port = 44188) {
        auto made = TQPlayerServer::initWithUDPPort(
            {.runLoop = loop,
             .openSocket = [this]() -> Result<std::unique_ptr<DatagramSocket>> {
                 return std::make_unique<FakeSocket>(wire);
             },
             .host = host,
             .guid = guid,
             .log = [this](std::string_view line) { log.emplace_back(line); }},
            port);
        if (made) {
            (*made)->setDataSource(&displays);
        }
        return made;
    }
    /// Creates the server and skips its self-test.
    void start() {
        server = make().value();
        receive("Kantivel ann {\"name\":\"Desk\"}");
        loop.advance(TQPlayerServer::selfTestTime);
        forget();
    }
    void receive(std::string_view bytes,
                 const SocketAddress& source = SocketAddress(0x0A000002, 50000)) const {
        wire.receiver(bytes, source);
    }
    void forget() {
        wire.sent.clear();
        log.clear();
    }

    ManualRunLoop loop;
    Wire wire;
    std::shared_ptr<FakeHost> host = std::make_shared<FakeHost>();
    MachineGuid guid;
    std::vector<std::string> log;
    PlainDisplays displays{{{.referenceID = "1-10-21036"}}};
    std::unique_ptr<TQPlayerServer> server;
};

}  // namespace tonquil
