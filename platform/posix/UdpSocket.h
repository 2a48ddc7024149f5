// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstddef>
#include <memory>

#include "files/FileHandle.h"
#include "foundation/Problem.h"
#include "remote/DatagramSocket.h"

namespace tonquil {

/// A UDP socket of the operating system.
///
/// It binds its port exclusively. In one turn of the run loop it delivers at most `mostDatagrams`,
/// and starts none after `longestTurn`; the rest waits for the next turn, and what the system's
/// buffer cannot hold meanwhile is lost.
class UdpSocket final : public DatagramSocket {
 public:
    static constexpr int mostDatagrams = 64;
    static constexpr std::chrono::milliseconds longestTurn{2};

    /// Fails if the system has no sockets left.
    [[nodiscard]] static Result<std::unique_ptr<UdpSocket>> open();
    ~UdpSocket() override;
    UdpSocket(const UdpSocket&) = delete;
    UdpSocket& operator=(const UdpSocket&) = delete;

    [[nodiscard]] int enableBroadcast() override;
    [[nodiscard]] int bind(const SocketAddress& address) override;
    [[nodiscard]] std::unique_ptr<RunLoop::Handle> receiveOn(RunLoop& runLoop,
                                                             Receiver receiver) override;
    /// To 255.255.255.255 it is sent through every interface that can broadcast: routing would send
    /// it to one network at most, and to none without a gateway.
    [[nodiscard]] int send(std::string_view bytes, const SocketAddress& recipient) override;

    /// The bound address; port 0 before binding.
    [[nodiscard]] SocketAddress localAddress() const;

 private:
    class Reception;

    explicit UdpSocket(FileHandle socket);
    [[nodiscard]] int sendThroughEachInterface(std::string_view bytes,
                                               const SocketAddress& recipient) const;

    /// Shared with a running reception.
    std::shared_ptr<FileHandle> _socket;
};

}  // namespace tonquil
