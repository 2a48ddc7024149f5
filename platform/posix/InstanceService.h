// SPDX-License-Identifier: MIT
#pragma once

#include <list>

#include "files/FileHandle.h"
#include "platform/posix/InstanceSocket.h"

namespace tonquil {

/// Answers what comes in on the socket of the first instance, and holds its place.
///
/// Nothing that a client does, or leaves undone, makes the run loop wait.
class InstanceService final : public InstanceListener {
 public:
    /// How a request begins on the socket; then its text, and a zero byte by which a whole one is
    /// told from one whose sender was killed on the way.
    static constexpr std::string_view requestStart = "TQL1";

    /// What a first instance has taken.
    struct Place {
        std::filesystem::path path;
        FileHandle lock;
        /// Bound to `path` and listening, without blocking.
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
    /// None while no further client is taken.
    std::unique_ptr<RunLoop::Handle> _watch;
    std::unique_ptr<RunLoop::Handle> _pause;
};

}  // namespace tonquil
