// SPDX-License-Identifier: MIT
#pragma once

#include <list>

#include "files/FileHandle.h"
#include "platform/posix/InstanceSocket.h"

namespace tonquil {

/// Answers requests on the socket of the first instance, and holds its place.
///
/// No client can block the run loop, whatever it does or fails to do.
class InstanceService final : public InstanceListener {
 public:
    /// The prefix of a request on the socket; then follow its text and a zero byte, which
    /// distinguishes a complete request from one whose sender was killed midway.
    static constexpr std::string_view requestStart = "TQL1";

    /// What the first instance holds.
    struct Place {
        std::filesystem::path path;
        FileHandle lock;
        /// Bound to `path` and listening, non-blocking.
        FileHandle socket;
    };

    InstanceService(Place place, RunLoop& runLoop, InstanceSocket::Handler handler, Log log);
    ~InstanceService() override;
    InstanceService(const InstanceService&) = delete;
    InstanceService& operator=(const InstanceService&) = delete;

 private:
    struct Client {
        FileHandle socket;
        std::string received;
        std::unique_ptr<RunLoop::Handle> watch;
        std::unique_ptr<RunLoop::Handle> limit;
    };
    using ClientPosition = std::list<Client>::iterator;

    void listen();
    void accept();
    void receive(ClientPosition client);
    void answer(ClientPosition client);
    void refuse(ClientPosition client, std::string_view reason);
    void remove(ClientPosition client);
    void report(std::string_view line) const;

    Place _place;
    RunLoop& _runLoop;
    InstanceSocket::Handler _handler;
    Log _log;
    std::list<Client> _clients;
    /// Null while no more clients are accepted.
    std::unique_ptr<RunLoop::Handle> _watch;
    std::unique_ptr<RunLoop::Handle> _pause;
};

}  // namespace tonquil
