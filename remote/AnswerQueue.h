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

/// Decides when a scan or subscription is answered: normally at once; later or never when there are
/// more requests than `AnswerLimits` allows.
///
/// Deferred answers wait, one recipient per host and at most `mostWaiting` hosts, and the newest is
/// answered first. So a companion that asks right after a flood does not wait behind it. After
/// `longestWait` a recipient is dropped and has to ask again.
class AnswerQueue {
 public:
    using Send = std::function<void(const SocketAddress& recipient)>;

    static constexpr std::size_t mostWaiting = 32;
    static constexpr std::chrono::milliseconds longestWait{2000};

    /// `send` may destroy the queue.
    AnswerQueue(RunLoop& runLoop, Send send);
    AnswerQueue(const AnswerQueue&) = delete;
    AnswerQueue& operator=(const AnswerQueue&) = delete;

    /// Whether the recipient may be answered now; if so, the answer is counted. Always true for
    /// programs on this computer (127.0.0.0/8).
    [[nodiscard]] bool admits(const SocketAddress& recipient);
    /// Answers the recipient as soon as the limits allow, which may be never.
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
    /// Newest first.
    std::vector<Waiting> _waiting;
    std::unique_ptr<RunLoop::Handle> _timer;
};

}  // namespace tonquil
