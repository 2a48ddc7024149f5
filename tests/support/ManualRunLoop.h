// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <vector>

#include "foundation/RunLoop.h"

namespace tonquil {

/// A manually driven run loop: time stands still until `advance`.
///
/// The clock starts at zero. Callbacks only run from `advance`, `runPosted` and `pollReadable`.
/// Handles may outlive the loop.
class ManualRunLoop final : public RunLoop {
 public:
    [[nodiscard]] Clock::time_point now() const override { return _now; }
    [[nodiscard]] std::unique_ptr<Handle> callOnce(std::chrono::milliseconds delay,
                                                   Call call) override;
    /// An interval below one millisecond counts as one.
    [[nodiscard]] std::unique_ptr<Handle> callRepeatedly(std::chrono::milliseconds interval,
                                                         Call call) override;
    [[nodiscard]] std::unique_ptr<Handle> watchReadable(int descriptor, Call call) override;
    void post(Call call) override { _posted.push_back(std::move(call)); }

    /// Advances the clock and fires the timers due on the way, in order of time and creation,
    /// running posted calls in between. During a call the clock shows the time at which it was due.
    void advance(std::chrono::milliseconds duration);

    /// Runs posted calls, including those they post in turn; returns the number of calls.
    std::size_t runPosted();

    /// Waits up to `timeout` of real time for a watched file descriptor, calls the watches that are
    /// readable and runs posted calls; the clock does not move. Returns the number of watches
    /// called.
    std::size_t pollReadable(std::chrono::milliseconds timeout);

 private:
    struct Entry;
    struct EntryHandle;
    // The handle owns its entry, which is shared only while it is being called.
    using Entries = std::vector<std::weak_ptr<Entry>>;

    std::unique_ptr<Handle> add(Entries& entries, Entry entry);
    std::shared_ptr<Entry> nextTimer(Clock::time_point end);

    Clock::time_point _now{};
    std::uint64_t _order = 0;
    Entries _timers;
    Entries _watches;
    std::deque<Call> _posted;
};

}  // namespace tonquil
