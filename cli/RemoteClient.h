// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "cli/RemoteAccess.h"
#include "foundation/Problem.h"
#include "remote/Announce.h"
#include "remote/SocketAddress.h"

namespace tonquil {

/// A server that sent an announce.
struct RemoteServer {
    SocketAddress address;
    Announce announce;
};

/// Queries servers and receives their announces.
///
/// Datagrams may be lost, so requests are repeated.
class RemoteClient {
 public:
    /// Handles one announce; returns true when no more are needed.
    using Heard = std::function<bool(const RemoteServer& server)>;

    /// How often a request is sent, and how long to wait for answers.
    struct Patience {
        std::chrono::milliseconds interval{300};
        std::chrono::milliseconds limit{3000};
    };

    [[nodiscard]] static Result<std::unique_ptr<RemoteClient>> open(const RemoteAccess& access);

    /// The server's address on a host.
    [[nodiscard]] Result<SocketAddress> addressOf(const std::string& host) const;
    /// The broadcast address that reaches every server on the network.
    [[nodiscard]] SocketAddress everywhere() const;

    /// Sends `question`, a tag, until `heard` returns true or time runs out; returns whether it
    /// did.
    ///
    /// Only announces from the queried host count. A problem if nothing can be sent.
    [[nodiscard]] Result<bool> ask(std::string_view question, const SocketAddress& server,
                                   const Patience& patience, const Heard& heard);
    /// Queries one server until it answers; a problem if it does not.
    [[nodiscard]] Result<Announce> announceOf(const std::string& host, const SocketAddress& server);
    [[nodiscard]] Result<void> send(std::string_view bytes, const SocketAddress& server);

 private:
    RemoteClient(const RemoteAccess& access, std::unique_ptr<DatagramSocket> socket);
    void receive(std::string_view bytes, const SocketAddress& source, const SocketAddress& server,
                 const Heard& heard);

    const RemoteAccess& _access;
    std::unique_ptr<DatagramSocket> _socket;
    bool _isContent = false;
};

}  // namespace tonquil
