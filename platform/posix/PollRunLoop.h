// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <deque>
#include <memory>
#include <vector>

#include "foundation/RunLoop.h"

namespace tonquil {

/// A run loop on poll(2), for programs without Qt. Handles may outlive it.
class PollRunLoop final : public RunLoop {
 public:
    PollRunLoop() = default;

    [[nodiscard]] Clock::time_point now() const override { return Clock::now(); }
    [[nodiscard]] std::unique_ptr<Handle> callOnce(std::chrono::milliseconds delay,
                                                   Call call) override;
    /// An interval below one millisecond counts as one; missed calls are not made up for.
    [[nodiscard]] std::unique_ptr<Handle> callRepeatedly(std::chrono::milliseconds interval,
                                                         Call call) override;
    [[nodiscard]] std::unique_ptr<Handle> watchReadable(int descriptor, Call call) override;
    void post(Call call) override;

    /// Runs until `stop` is called from a callback, or nothing is left to call.
    void run();
    void stop() { _isStopped = true; }

 private:
    struct Entry;
    class EntryHandle;
    using Entries = std::vector<std::shared_ptr<Entry>>;

    [[nodiscard]] static std::unique_ptr<Handle> add(Entries& entries,
                                                     std::shared_ptr<Entry> entry);
    void runPosted();
    void runTimers();
    void waitForDescriptors();
    [[nodiscard]] int waitingTime() const;

    bool _isStopped = false;
    Entries _timers;
    Entries _watches;
    std::deque<Call> _posted;
};

}  // namespace tonquil
