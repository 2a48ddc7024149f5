// SPDX-License-Identifier: MIT
#include "cli/RemoteClient.h"

#include <optional>
#include <system_error>
#include <utility>

namespace tonquil {

Result<std::unique_ptr<RemoteClient>> RemoteClient::open(const RemoteAccess& access) {
    auto socket = access.openSocket();
    if (!socket) {
        return tl::unexpected(std::move(socket.error()));
    }
    // Any free port: answers come back to it.
    if ((*socket)->enableBroadcast() != 0 || (*socket)->bind(SocketAddress()) != 0) {
        return problem("No network socket can be set up.");
    }
    return std::unique_ptr<RemoteClient>(new RemoteClient(access, std::move(*socket)));
}

RemoteClient::RemoteClient(const RemoteAccess& access, std::unique_ptr<DatagramSocket> socket)
    : _access(access), _socket(std::move(socket)) {}

Result<SocketAddress> RemoteClient::addressOf(const std::string& host) const {
    const auto address = _access.lookUpHost(host);
    if (!address) {
        return tl::unexpected(address.error());
    }
    return SocketAddress(*address, _access.port);
}

SocketAddress RemoteClient::everywhere() const {
    return {SocketAddress::broadcastHost, _access.port};
}

Result<void> RemoteClient::send(std::string_view bytes, const SocketAddress& server) {
    if (const int error = _socket->send(bytes, server); error != 0) {
        return problem("Nothing can be sent to the network.",
                       std::generic_category().message(error));
    }
    return {};
}

void RemoteClient::receive(std::string_view bytes, const SocketAddress& source,
                           const SocketAddress& server, const Heard& heard) {
    if (_isContent ||
        (server.host() != SocketAddress::broadcastHost && source.host() != server.host())) {
        return;
    }
    auto announce = readAnnounce(bytes);
    if (announce && heard({source, std::move(*announce)})) {
        _isContent = true;
        _access.stop();
    }
}

Result<bool> RemoteClient::ask(std::string_view question, const SocketAddress& server,
                               const Patience& patience, const Heard& heard) {
    _isContent = false;
    const auto reception = _socket->receiveOn(
        _access.runLoop, [&](std::string_view bytes, const SocketAddress& source) {
            receive(bytes, source, server, heard);
        });
    if (!reception) {
        return problem("The network cannot be listened to.");
    }
    if (auto sent = send(question, server); !sent) {
        return tl::unexpected(std::move(sent.error()));
    }
    const auto repetition = _access.runLoop.callRepeatedly(patience.interval, [&] {
        // An error here is temporary: the same send just worked.
        static_cast<void>(_socket->send(question, server));
    });
    const auto limit = _access.runLoop.callOnce(patience.limit, _access.stop);
    _access.run();
    return _isContent;
}

Result<Announce> RemoteClient::announceOf(const std::string& host, const SocketAddress& server) {
    std::optional<Announce> announce;
    const auto answered = ask(remote::scanTag, server, {}, [&](const RemoteServer& heard) {
        announce = heard.announce;
        return true;
    });
    if (!answered) {
        return tl::unexpected(answered.error());
    }
    if (!announce) {
        return problem("No server answers on " + host + ".");
    }
    return std::move(*announce);
}

}  // namespace tonquil
