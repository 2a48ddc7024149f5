// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string_view>

#include "foundation/RunLoop.h"
#include "remote/SocketAddress.h"

namespace tonquil {

/// An IPv4 datagram socket that never makes its caller wait.
class DatagramSocket {
 public:
    /// Called with one whole datagram. It may destroy the socket and the handle of the watch.
    using Receiver = std::function<void(std::string_view bytes, const SocketAddress& source)>;

    virtual ~DatagramSocket() = default;

    /// Allows sending to 255.255.255.255. Gives what the system's call gives: 0, or -1.
    [[nodiscard]] virtual int enableBroadcast() = 0;
    /// Gives 0, or the system's error code; a port that another socket has is an error.
    [[nodiscard]] virtual int bind(const SocketAddress& address) = 0;
    /// Passes on what comes in, in order, for as long as the handle lives; null when the socket
    /// cannot be watched. However much comes in, other work of the run loop is not held up.
    [[nodiscard]] virtual std::unique_ptr<RunLoop::Handle> receiveOn(RunLoop& runLoop,
                                                                     Receiver receiver) = 0;
    /// Sends one datagram at once or not at all, from the recipient's `ownHost` where it has one.
    /// To 255.255.255.255 it goes out on every network. Gives 0, or the system's error code.
    [[nodiscard]] virtual int send(std::string_view bytes, const SocketAddress& recipient) = 0;
};

}  // namespace tonquil
