// SPDX-License-Identifier: MIT
#pragma once

#include <csignal>
#include <functional>
#include <memory>
#include <vector>

#include "files/FileHandle.h"
#include "foundation/Problem.h"
#include "foundation/RunLoop.h"

namespace tonquil {

/// Turns the first SIGTERM, SIGINT or SIGHUP into a call on the main thread.
///
/// Later ones make no further call, but a second SIGTERM or a second SIGINT ends the program at
/// once, so that one that is stuck can still be ended. A second SIGHUP is passed over, because the
/// closing of one terminal sends several. SIGINT and SIGHUP stay ignored where whoever started the
/// program had them ignored (nohup). SIGPIPE is ignored: a write to a peer that has gone fails
/// with EPIPE.
///
/// At most one may exist at a time. It puts back what was there before when it is destroyed.
class TerminationSignals {
 public:
    using Handler = std::function<void(int signal)>;

    /// Fails when the system has no descriptors left, or when there is one already.
    [[nodiscard]] static Result<std::unique_ptr<TerminationSignals>> watch(RunLoop& runLoop,
                                                                           Handler handler);
    ~TerminationSignals();
    TerminationSignals(const TerminationSignals&) = delete;
    TerminationSignals& operator=(const TerminationSignals&) = delete;

 private:
    explicit TerminationSignals(Handler handler);
    void takeOver();
    void takeSignal();

    struct Former {
        int signal;
        struct sigaction action;
    };
    Handler _handler;
    FileHandle _readEnd;
    FileHandle _writeEnd;
    std::vector<Former> _former;
    std::unique_ptr<RunLoop::Handle> _watch;
};

}  // namespace tonquil
