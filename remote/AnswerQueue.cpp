// SPDX-License-Identifier: MIT
#include "remote/AnswerQueue.h"

#include <algorithm>
#include <utility>

namespace tonquil {

namespace {

// The interval at which the global rate grants one answer.
constexpr std::chrono::milliseconds betweenAttempts{20};

}  // namespace

AnswerQueue::AnswerQueue(RunLoop& runLoop, Send send) : _runLoop(runLoop), _send(std::move(send)) {}

bool AnswerQueue::admits(const SocketAddress& recipient) {
    return recipient.isLoopback() || _limits.take(recipient.host(), _runLoop.now());
}

void AnswerQueue::defer(const SocketAddress& recipient) {
    std::erase_if(_waiting, [&](const Waiting& waiting) {
        return waiting.recipient.host() == recipient.host();
    });
    if (_waiting.size() == mostWaiting) {
        _waiting.pop_back();
    }
    _waiting.insert(_waiting.begin(), {recipient, _runLoop.now()});
    if (!_timer) {
        startTimer();
    }
}

void AnswerQueue::startTimer() {
    _timer = _runLoop.callOnce(betweenAttempts, [this] { answerWaiting(); });
}

void AnswerQueue::answerWaiting() {
    const auto now = _runLoop.now();
    std::vector<SocketAddress> admitted;
    std::erase_if(_waiting,
                  [&](const Waiting& waiting) { return now - waiting.since > longestWait; });
    // The newest is tried first, so it gets the grant if there is only one.
    for (const auto& [recipient, since] : _waiting) {
        if (_limits.take(recipient.host(), now)) {
            admitted.push_back(recipient);
        }
    }
    std::erase_if(_waiting, [&](const Waiting& waiting) {
        return std::ranges::find(admitted, waiting.recipient) != admitted.end();
    });
    _timer.reset();
    if (!_waiting.empty()) {
        startTimer();
    }
    // Do not touch this object from here on: sending may destroy it.
    const Send send = _send;
    for (const SocketAddress& recipient : admitted) {
        send(recipient);
    }
}

}  // namespace tonquil
