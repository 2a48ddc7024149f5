// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string_view>

#include "foundation/RunLoop.h"
#include "remote/SocketAddress.h"

namespace tonquil {

/// A non-blocking IPv4 datagram socket.
class DatagramSocket {
 public:
    /// Called with one whole datagram. It may destroy the socket and the watch handle.
    using Receiver = std::function<void(std::string_view bytes, const SocketAddress& source)>;

    virtual ~DatagramSocket() = default;

    /// Allows sending to 255.255.255.255. Returns the result of the system call: 0 or -1.
    [[nodiscard]] virtual int enableBroadcast() = 0;
    /// Returns 0 or errno; a port already in use is an error.
    [[nodiscard]] virtual int bind(const SocketAddress& address) = 0;
    /// Delivers incoming datagrams in order while the handle lives; null if the socket cannot be
    /// watched. A flood of datagrams does not starve other work in the event loop.
    [[nodiscard]] virtual std::unique_ptr<RunLoop::Handle> receiveOn(RunLoop& runLoop,
                                                                     Receiver receiver) = 0;
    /// Sends one datagram immediately or not at all, from the recipient's `ownHost` if it has one.
    /// 255.255.255.255 sends on every network. Returns 0 or errno.
    [[nodiscard]] virtual int send(std::string_view bytes, const SocketAddress& recipient) = 0;
};

}  // namespace tonquil
