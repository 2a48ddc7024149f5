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

/// A server that was heard.
struct RemoteServer {
    SocketAddress address;
    Announce announce;
};

/// Asks servers what they have, and hears what they announce.
///
/// Datagrams may be lost, so questions are repeated.
class RemoteClient {
 public:
    /// Takes one announce; true when nothing more is needed.
    using Heard = std::function<bool(const RemoteServer& server)>;

    /// How often a question is asked, and for how long answers are awaited.
    struct Patience {
        std::chrono::milliseconds interval{300};
        std::chrono::milliseconds limit{3000};
    };

    [[nodiscard]] static Result<std::unique_ptr<RemoteClient>> open(const RemoteAccess& access);

    /// The server's address on a host.
    [[nodiscard]] Result<SocketAddress> addressOf(const std::string& host) const;
    /// Where every server on the network hears it.
    [[nodiscard]] SocketAddress everywhere() const;

    /// Asks with `question`, a tag, until `heard` is content or the patience ends; whether it was.
    ///
    /// Only announces from the host that is asked count. A problem when nothing can be sent.
    [[nodiscard]] Result<bool> ask(std::string_view question, const SocketAddress& server,
                                   const Patience& patience, const Heard& heard);
    /// Asks one server once it answers; a problem when it does not.
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
