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

/// Serves companions on the local network: describes the displays to them and forwards the states
/// they set. It does not know the displays itself; its data source does.
///
/// Everything runs on the event loop's thread. A server may be destroyed at any time, even from a
/// call of its data source; a running self-test then ends without a result.
class TQPlayerServer {
 public:
    using SocketOpener = std::function<Result<std::unique_ptr<DatagramSocket>>()>;

    /// A server's dependencies. The referenced objects must outlive it.
    struct Environment {
        RunLoop& runLoop;
        SocketOpener openSocket;
        std::shared_ptr<const LocalHost> host;
        MachineGuid& guid;
        Log log;
    };

    /// How long the server listens for announces after it starts.
    static constexpr std::chrono::milliseconds selfTestTime{300};
    /// The reason for a failed self-test: no announce arrived, not even our own.
    static constexpr std::uint64_t noAnnounceHeard = 2281;

    /// Opens the socket, binds it to `port` on all addresses and starts the self-test.
    ///
    /// Fails if there is no socket or the port is not available; the detail is also logged. Set the
    /// data source before the event loop runs.
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
    /// Changes only the stored number, not the socket's port.
    void setUDPPort(std::uint16_t port) { _udpPort = port; }
    [[nodiscard]] TQPlayerServerDataSource* dataSource() const { return _dataSource; }
    /// Not owned. Without one, the server has no displays and ignores states.
    void setDataSource(TQPlayerServerDataSource* dataSource) { _dataSource = dataSource; }

    /// Announces to every companion on the network.
    void broadcastAnnounce();
    void sendAnnounceToRecipient(const SocketAddress& recipient);
    /// Builds one announce and sends it to each recipient, in order.
    void sendAnnounceToRecipients(std::span<const SocketAddress> recipients);
    /// Drops expired subscribers and sends an announce to the others. Calls beyond the rate of
    /// `AnswerLimits::forPushes` are merged into one a little later.
    void sendStateToSubscribers();

    /// Handles one datagram with any contents.
    void _receiveData(std::string_view bytes, const SocketAddress& source);
    void _sendData(std::string_view bytes, const SocketAddress& recipient);
    void _broadcastData(std::string_view bytes);
    /// 255.255.255.255 with the companions' port.
    [[nodiscard]] static SocketAddress _broadcastRecipient();
    /// A dotted IPv4 address with the companions' port; 255.255.255.255 for any other text.
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

    /// Expires with the server, because a call of the data source may destroy it.
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
    /// Only set while the self-test is running.
    std::optional<std::set<std::string>> _selfTestNames;
    std::unique_ptr<RunLoop::Handle> _selfTestTimer;
    int _ownScansLeft = 0;
};

}  // namespace tonquil
