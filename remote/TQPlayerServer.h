// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>

#include "foundation/Log.h"
#include "foundation/Problem.h"
#include "foundation/RunLoop.h"
#include "remote/AnswerQueue.h"
#include "remote/DatagramSocket.h"
#include "remote/LocalHost.h"
#include "remote/LogLimiter.h"
#include "remote/MachineGuid.h"
#include "remote/RemoteMessages.h"
#include "remote/Subscribers.h"
#include "remote/TQPlayerServerDataSource.h"

namespace tonquil {

/// Answers companions on the local network: describes the displays to them and passes on what they
/// set. It knows no displays itself; its data source does.
///
/// Everything happens on the thread of the run loop. A server may be destroyed at any time, also
/// from a call of its data source. A self-test that is running then ends without a result.
class TQPlayerServer {
 public:
    using SocketOpener = std::function<Result<std::unique_ptr<DatagramSocket>>()>;

    /// What a server works with. The referenced objects must outlive it.
    struct Environment {
        RunLoop& runLoop;
        SocketOpener openSocket;
        std::shared_ptr<const LocalHost> host;
        MachineGuid& guid;
        Log log;
    };

    /// For how long the server listens for announces after its start.
    static constexpr std::chrono::milliseconds selfTestTime{300};
    /// The reason of a failed self-test: no announce came, not even our own.
    static constexpr std::uint64_t noAnnounceHeard = 2281;

    /// Opens the socket, binds it to `port` of all addresses and starts the self-test.
    ///
    /// A problem when there is no socket or no port; its detail is also in the log. Set the data
    /// source before the run loop turns.
    [[nodiscard]] static Result<std::unique_ptr<TQPlayerServer>> initWithUDPPort(
        Environment environment, std::uint16_t port);
    /// The same with the protocol's port.
    [[nodiscard]] static Result<std::unique_ptr<TQPlayerServer>> init(Environment environment) {
        return initWithUDPPort(std::move(environment), remote::serverPort);
    }
    ~TQPlayerServer();
    TQPlayerServer(const TQPlayerServer&) = delete;
    TQPlayerServer& operator=(const TQPlayerServer&) = delete;

    [[nodiscard]] std::uint16_t UDPPort() const { return _udpPort; }
    /// Changes only the number, not the port of the socket.
    void setUDPPort(std::uint16_t port) { _udpPort = port; }
    [[nodiscard]] TQPlayerServerDataSource* dataSource() const { return _dataSource; }
    /// Not owned. Without one, the server has no displays and sets nothing.
    void setDataSource(TQPlayerServerDataSource* dataSource) { _dataSource = dataSource; }

    /// Announces to every companion on the network.
    void broadcastAnnounce();
    void sendAnnounceToRecipient(const SocketAddress& recipient);
    /// Builds one announce and sends it to each, in order.
    void sendAnnounceToRecipients(std::span<const SocketAddress> recipients);
    /// Drops the subscribers whose time is up and announces to the others. More often than
    /// `AnswerLimits::forPushes` says, several calls become one a little later.
    void sendStateToSubscribers();

    /// Handles one datagram, whatever it holds.
    void _receiveData(std::string_view bytes, const SocketAddress& source);
    void _sendData(std::string_view bytes, const SocketAddress& recipient);
    void _broadcastData(std::string_view bytes);
    /// 255.255.255.255 and the companions' port.
    [[nodiscard]] static SocketAddress _broadcastRecipient();
    /// An address in dotted numbers, with the companions' port; 255.255.255.255 for other text.
    [[nodiscard]] static SocketAddress _makeRecipientFromString(const std::string& text);

 private:
    explicit TQPlayerServer(Environment environment, std::uint16_t port);
    [[nodiscard]] std::optional<Problem> setUp();
    void startSelfTest();
    void _selfTestEnd();
    void answer(const SocketAddress& source);
    [[nodiscard]] bool isOwnScan(const SocketAddress& source);
    void takeAnnounce(std::string_view bytes);
    void takeStateUpdate(std::string_view bytes, const SocketAddress& source);
    void logOrder(const SocketAddress& source, std::string_view referenceID);
    void ignore(std::string_view bytes);
    void log(std::string_view line) const;

    /// Expires with the server: a call of the data source may destroy it.
    std::shared_ptr<bool> _isAlive = std::make_shared<bool>(true);
    Environment _environment;
    std::uint16_t _udpPort;
    TQPlayerServerDataSource* _dataSource = nullptr;
    LogLimiter _ignoredLog;
    LogLimiter _changeLog;
    LogLimiter _sendFailureLog;
    std::unique_ptr<DatagramSocket> _socket;
    std::unique_ptr<RunLoop::Handle> _source;
    AnswerQueue _answers;
    Subscribers _stateSubscribers;
    TokenBucket _pushes{AnswerLimits::forPushes};
    std::unique_ptr<RunLoop::Handle> _latePush;
    /// There only while the self-test's window is open.
    std::optional<std::set<std::string>> _selfTestNames;
    std::unique_ptr<RunLoop::Handle> _selfTestTimer;
    int _ownScansLeft = 0;
};

}  // namespace tonquil
