// SPDX-License-Identifier: MIT
#include "platform/posix/InstanceService.h"

#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <utility>

namespace tonquil {

namespace {

bool isOfThisUser(int socket) {
    ucred peer{};
    socklen_t size = sizeof peer;
    return getsockopt(socket, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 && peer.uid == geteuid();
}

}  // namespace

InstanceService::InstanceService(Place place, RunLoop& runLoop, InstanceSocket::Handler handler,
                                 Log log)
    : _place(std::move(place)),
      _runLoop(runLoop),
      _handler(std::move(handler)),
      _log(std::move(log)) {
    listen();
}

InstanceService::~InstanceService() {
    // The lock is still held, so this is no other instance's socket.
    unlink(_place.path.c_str());
}

void InstanceService::listen() {
    _watch = _runLoop.watchReadable(_place.socket.get(), [this] { accept(); });
}

void InstanceService::accept() {
    Client client;
    client.socket =
        FileHandle(accept4(_place.socket.get(), nullptr, nullptr, SOCK_NONBLOCK | SOCK_CLOEXEC));
    if (!client.socket.isOpen()) {
        if (errno != EAGAIN && errno != EINTR && errno != ECONNABORTED) {
            // When no file descriptors are left, the socket would stay readable and the loop would
            // spin.
            _watch.reset();
            _pause = _runLoop.callOnce(std::chrono::seconds(1), [this] {
                _pause.reset();
                listen();
            });
        }
        return;
    }
    if (!isOfThisUser(client.socket.get())) {
        report("Another user's program was refused at the instance socket.");
        return;
    }
    const auto position = _clients.insert(_clients.end(), std::move(client));
    position->watch =
        _runLoop.watchReadable(position->socket.get(), [this, position] { receive(position); });
    position->limit = _runLoop.callOnce(InstanceSocket::requestTime, [this, position] {
        refuse(position, "it did not send its request in time");
    });
    if (_clients.size() == InstanceSocket::mostClients) {
        _watch.reset();
    }
}

void InstanceService::receive(ClientPosition client) {
    std::array<char, 8192> bytes{};
    const auto count = recv(client->socket.get(), bytes.data(), bytes.size(), 0);
    if (count < 0 && (errno == EAGAIN || errno == EINTR)) {
        return;
    }
    if (count <= 0) {
        refuse(client, "it left before its request was whole");
        return;
    }
    std::string& received = client->received;
    received.append(bytes.data(), static_cast<std::size_t>(count));
    const auto end = std::min(received.find('\0'), received.size());
    if (!received.starts_with(requestStart.substr(0, received.size())) ||
        end > requestStart.size() + InstanceSocket::mostBytes || end + 1 < received.size()) {
        refuse(client, "what it sent is not a request");
    } else if (end < received.size()) {
        answer(client);
    }
}

void InstanceService::answer(ClientPosition client) {
    client->watch.reset();
    const FileHandle socket = std::move(client->socket);
    const auto& received = client->received;
    std::string text =
        received.substr(requestStart.size(), received.size() - requestStart.size() - 1);
    remove(client);
    // The handler may destroy this object.
    const auto handler = _handler;
    std::string line = handler(std::move(text));
    line.resize(std::min(line.size(), InstanceSocket::mostBytes));
    std::replace(line.begin(), line.end(), '\n', ' ');
    line.push_back('\n');
    // The socket buffer has room for it, unless the peer misbehaves.
    [[maybe_unused]] const auto sent = send(socket.get(), line.data(), line.size(), MSG_NOSIGNAL);
}

void InstanceService::refuse(ClientPosition client, std::string_view reason) {
    std::string line = "A program was refused at the instance socket: ";
    report(line.append(reason).append("."));
    remove(client);
}

void InstanceService::remove(ClientPosition client) {
    _clients.erase(client);
    if (!_watch && !_pause) {
        listen();
    }
}

void InstanceService::report(std::string_view line) const {
    if (_log) {
        _log(line);
    }
}

}  // namespace tonquil
