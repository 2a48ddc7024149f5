// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

#include "foundation/RunLoop.h"
#include "remote/AnswerLimits.h"
#include "remote/SocketAddress.h"

namespace tonquil {

/// Decides when a scan or a subscription is answered: at once as a rule, a little later or never
/// where more is asked than `AnswerLimits` grants.
///
/// What cannot be answered at once waits, one recipient of each host and `mostWaiting` hosts, and
/// the newest is answered first. So a companion that asks right after a flood does not wait for the
/// flood's leftovers to be answered. Whoever has waited for `longestWait` has to ask again.
class AnswerQueue {
 public:
    using Send = std::function<void(const SocketAddress& recipient)>;

    static constexpr std::size_t mostWaiting = 32;
    static constexpr std::chrono::milliseconds longestWait{2000};

    /// `send` may destroy the queue.
    AnswerQueue(RunLoop& runLoop, Send send);
    AnswerQueue(const AnswerQueue&) = delete;
    AnswerQueue& operator=(const AnswerQueue&) = delete;

    /// Whether the recipient may be answered at once; the answer is then counted. Programs on this
    /// computer (127.0.0.0/8) always may.
    [[nodiscard]] bool admits(const SocketAddress& recipient);
    /// Has the recipient answered as soon as it may be, which may be never.
    void defer(const SocketAddress& recipient);

 private:
    struct Waiting {
        SocketAddress recipient;
        RunLoop::Clock::time_point since;
    };

    void startTimer();
    void answerWaiting();

    RunLoop& _runLoop;
    Send _send;
    AnswerLimits _limits;
    /// The newest first.
    std::vector<Waiting> _waiting;
    std::unique_ptr<RunLoop::Handle> _timer;
};

}  // namespace tonquil
