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
/// Later ones cause no further call, but a second SIGTERM or a second SIGINT ends the program at
/// once, so that a stuck program can still be ended. A second SIGHUP is ignored, because closing
/// one terminal sends several. SIGINT and SIGHUP stay ignored if the parent process had them
/// ignored (nohup). SIGPIPE is ignored: writing to a peer that has gone fails with EPIPE.
///
/// At most one may exist at a time. Its destructor restores the previous handlers.
class TerminationSignals {
 public:
    using Handler = std::function<void(int signal)>;

    /// Fails if the system has no file descriptors left, or if there is one already.
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
