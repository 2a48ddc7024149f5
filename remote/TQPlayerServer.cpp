// SPDX-License-Identifier: MIT
#include "remote/TQPlayerServer.h"

#include <arpa/inet.h>

#include <utility>

#include "remote/PrintableText.h"
#include "values/Utf8.h"

namespace tonquil {

namespace {

// How much of a datagram is logged: a typical announce fits.
constexpr std::size_t mostLoggedBytes = 1024;
// How many names a self-test keeps. One is enough to pass it.
constexpr std::size_t mostNames = 64;
constexpr std::size_t mostNameBytes = 256;
// Far more than a computer has displays; a datagram has room for a thousand empty states.
constexpr int mostStates = 256;
// `AnswerLimits::forPushes` allows one push per interval.
constexpr std::chrono::milliseconds betweenPushes{200};
// How many of our own scans a self-test accepts: one comes back from each network.
constexpr int mostOwnScans = 4;

}  // namespace

TQPlayerServer::TQPlayerServer(Environment environment, std::uint16_t port)
    : _environment(std::move(environment)),
      _udpPort(port),
      _ignoredLog(_environment.log, "further datagrams were ignored"),
      _changeLog(_environment.log, "further orders came from the network"),
      _sendFailureLog(_environment.log, "further datagrams could not be sent"),
      _answers(_environment.runLoop,
               [this, life = std::weak_ptr(_isAlive)](const SocketAddress& recipient) {
                   if (!life.expired()) {
                       sendAnnounceToRecipient(recipient);
                   }
               }) {}

TQPlayerServer::~TQPlayerServer() {
    _source.reset();
    _socket.reset();
    _selfTestTimer.reset();
}

Result<std::unique_ptr<TQPlayerServer>> TQPlayerServer::initWithUDPPort(Environment environment,
                                                                        std::uint16_t port) {
    std::unique_ptr<TQPlayerServer> server(new TQPlayerServer(std::move(environment), port));
    if (auto obstacle = server->setUp()) {
        return tl::unexpected(std::move(*obstacle));
    }
    server->startSelfTest();
    return server;
}

std::optional<Problem> TQPlayerServer::setUp() {
    const auto fail = [this](std::string line) {
        log(line);
        return Problem{"Remote configuration cannot use UDP port " + std::to_string(_udpPort) + ".",
                       std::move(line)};
    };
    auto socket = _environment.openSocket();
    if (!socket) {
        log(socket.error().detail);
        return std::move(socket.error());
    }
    _socket = std::move(*socket);
    if (const int result = _socket->enableBroadcast(); result != 0) {
        return fail("setsockopt() failed " + std::to_string(result));
    }
    if (const int error = _socket->bind(SocketAddress(0, _udpPort)); error != 0) {
        return fail("CFSocketSetAddress() failed " + std::to_string(error));
    }
    _source = _socket->receiveOn(_environment.runLoop,
                                 [this](std::string_view bytes, const SocketAddress& source) {
                                     _receiveData(bytes, source);
                                 });
    if (!_source) {
        return fail("CFSocketCreateRunLoopSource failed (nil)");
    }
    log("Socket listening on port " + std::to_string(_udpPort));
    return std::nullopt;
}

void TQPlayerServer::startSelfTest() {
    _selfTestNames.emplace();
    _ownScansLeft = mostOwnScans;
    _selfTestTimer = _environment.runLoop.callOnce(selfTestTime, [this] { _selfTestEnd(); });
    // Always to the protocol's port, whatever port this server uses.
    _sendData(remote::scanTag, SocketAddress(SocketAddress::broadcastHost, remote::serverPort));
}

void TQPlayerServer::_selfTestEnd() {
    const bool heardNobody = _selfTestNames->empty();
    _selfTestTimer.reset();
    _selfTestNames.reset();
    // Last, because the callback may destroy the server.
    if (heardNobody && _dataSource != nullptr) {
        _dataSource->playerServerFailedBroadcastTest(*this, noAnnounceHeard);
    }
}

void TQPlayerServer::_receiveData(std::string_view bytes, const SocketAddress& source) {
    // Answering such a source would reach everybody.
    if (source.host() == SocketAddress::broadcastHost ||
        _environment.host->isBroadcastAddress(source.host())) {
        return;
    }
    switch (remote::kindOf(bytes)) {
        case remote::Kind::scan:
            answer(source);
            return;
        case remote::Kind::stateUpdate:
            takeStateUpdate(bytes, source);
            return;
        case remote::Kind::announce:
            if (_selfTestNames) {
                takeAnnounce(bytes);
                return;
            }
            break;
        case remote::Kind::subscribe:
            _stateSubscribers.subscribe(source, _environment.runLoop.now());
            answer(source);
            return;
        case remote::Kind::unrecognised:
            break;
    }
    ignore(bytes);
}

void TQPlayerServer::answer(const SocketAddress& source) {
    if (_answers.admits(source) || isOwnScan(source)) {
        sendAnnounceToRecipient(source);
    } else {
        _answers.defer(source);
    }
}

// A flood during the self-test must not make it fail. The system drops datagrams from the network
// that claim to come from this computer, so nobody else can bypass the limits this way.
bool TQPlayerServer::isOwnScan(const SocketAddress& source) {
    if (!_selfTestNames || _ownScansLeft == 0 || source.port() != _udpPort ||
        !_environment.host->hasAddress(source.host())) {
        return false;
    }
    --_ownScansLeft;
    return true;
}

void TQPlayerServer::takeAnnounce(std::string_view bytes) {
    const auto object = remote::objectAfter(remote::announceTag.size(), bytes);
    const PropertyValue* const name = object ? entry(*object, "name") : nullptr;
    if (name != nullptr && name->is_string() && _selfTestNames->size() < mostNames) {
        _selfTestNames->insert(name->get_ref<const std::string&>().substr(0, mostNameBytes));
    }
}

void TQPlayerServer::takeStateUpdate(std::string_view bytes, const SocketAddress& source) {
    const auto states = remote::objectAfter(remote::stateUpdateTag.size(), bytes);
    if (!states) {
        return;
    }
    int count = 0;
    const std::weak_ptr<bool> life = _isAlive;
    for (const auto& [referenceID, state] : states->items()) {
        if (!state.is_object()) {
            continue;
        }
        if (_dataSource == nullptr || ++count > mostStates) {
            return;
        }
        logOrder(source, referenceID);
        _dataSource->playerServerSetStateForScreen(*this, state, referenceID);
        if (life.expired()) {
            return;
        }
    }
}

void TQPlayerServer::logOrder(const SocketAddress& source, std::string_view referenceID) {
    if (!_changeLog.admits(_environment.runLoop.now())) {
        return;
    }
    std::string line = source.dottedHost();
    line += " sets the display ";
    line += remote::printable(referenceID, mostNameBytes);
    log(line);
}

void TQPlayerServer::ignore(std::string_view bytes) {
    if (!_ignoredLog.admits(_environment.runLoop.now())) {
        return;
    }
    std::string line = "ignored: ";
    line += isUtf8(bytes) ? remote::printable(bytes, mostLoggedBytes) : "(null)";
    log(line);
}

void TQPlayerServer::broadcastAnnounce() {
    sendAnnounceToRecipient(_broadcastRecipient());
}

void TQPlayerServer::sendAnnounceToRecipient(const SocketAddress& recipient) {
    sendAnnounceToRecipients({&recipient, 1});
}

void TQPlayerServer::sendAnnounceToRecipients(std::span<const SocketAddress> recipients) {
    PropertyValue screens = PropertyValue::object();
    if (_dataSource != nullptr) {
        const std::weak_ptr<bool> life = _isAlive;
        const auto referenceIDs = _dataSource->screensForPlayerServer(*this);
        for (const std::string& referenceID : referenceIDs) {
            if (life.expired() || _dataSource == nullptr) {
                break;
            }
            auto info = _dataSource->playerServerInfoForScreen(*this, referenceID);
            // A display that disappears while it is queried counts as gone.
            if (info.is_object()) {
                screens[referenceID] = std::move(info);
            }
        }
        if (life.expired()) {
            return;
        }
    }
    const LocalHost& host = *_environment.host;
    const std::string message = remote::announceMessage(
        host.localizedName(), _environment.guid.text(host), std::move(screens));
    for (const SocketAddress& recipient : recipients) {
        _sendData(message, recipient);
    }
}

void TQPlayerServer::sendStateToSubscribers() {
    if (_stateSubscribers.isEmpty()) {
        return;
    }
    if (!_pushes.take(_environment.runLoop.now())) {
        // The last state is always sent, however many came before it.
        if (!_latePush) {
            _latePush = _environment.runLoop.callOnce(betweenPushes, [this] {
                _latePush.reset();
                sendStateToSubscribers();
            });
        }
        return;
    }
    _stateSubscribers.removeExpired(_environment.runLoop.now());
    if (!_stateSubscribers.isEmpty()) {
        sendAnnounceToRecipients(_stateSubscribers.addresses());
    }
}

void TQPlayerServer::_sendData(std::string_view bytes, const SocketAddress& recipient) {
    const int error = _socket->send(bytes, recipient);
    if (error != 0 && _sendFailureLog.admits(_environment.runLoop.now())) {
        log("Unable to send data, " + std::to_string(error));
    }
}

void TQPlayerServer::_broadcastData(std::string_view bytes) {
    _sendData(bytes, _broadcastRecipient());
}

SocketAddress TQPlayerServer::_broadcastRecipient() {
    return {SocketAddress::broadcastHost, remote::companionPort};
}

SocketAddress TQPlayerServer::_makeRecipientFromString(const std::string& text) {
    in_addr host{};
    const bool isAddress = inet_pton(AF_INET, text.c_str(), &host) == 1;
    return {isAddress ? ntohl(host.s_addr) : SocketAddress::broadcastHost, remote::companionPort};
}

void TQPlayerServer::log(std::string_view line) const {
    if (_environment.log) {
        _environment.log(line);
    }
}

}  // namespace tonquil
