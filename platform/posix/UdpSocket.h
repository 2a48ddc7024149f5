// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstddef>
#include <memory>

#include "files/FileHandle.h"
#include "foundation/Problem.h"
#include "remote/DatagramSocket.h"

namespace tonquil {

/// A UDP socket of the system.
///
/// Its port is its own: a second socket cannot be bound to it. In one turn of the run loop it
/// passes on at most `mostDatagrams`, and begins none after `longestTurn`; the rest has to wait
/// for the next turn, and what the system's buffer cannot hold meanwhile is lost.
class UdpSocket final : public DatagramSocket {
 public:
    static constexpr int mostDatagrams = 64;
    static constexpr std::chrono::milliseconds longestTurn{2};

    /// Fails when the system has no socket left.
    [[nodiscard]] static Result<std::unique_ptr<UdpSocket>> open();
    ~UdpSocket() override;
    UdpSocket(const UdpSocket&) = delete;
    UdpSocket& operator=(const UdpSocket&) = delete;

    [[nodiscard]] int enableBroadcast() override;
    [[nodiscard]] int bind(const SocketAddress& address) override;
    [[nodiscard]] std::unique_ptr<RunLoop::Handle> receiveOn(RunLoop& runLoop,
                                                             Receiver receiver) override;
    /// To 255.255.255.255 it goes out through each interface that can broadcast: the routes would
    /// take it to one network at most, and to none where there is no gateway.
    [[nodiscard]] int send(std::string_view bytes, const SocketAddress& recipient) override;

    /// Where it is bound; port 0 before.
    [[nodiscard]] SocketAddress localAddress() const;

 private:
    class Reception;

    explicit UdpSocket(FileHandle socket);
    [[nodiscard]] int sendThroughEachInterface(std::string_view bytes,
                                               const SocketAddress& recipient) const;

    /// Shared with a reception that is under way.
    std::shared_ptr<FileHandle> _socket;
};

}  // namespace tonquil
