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

/// A run loop that a test drives by hand: time stands still until `advance`.
///
/// The clock starts at zero. Nothing is ever called but from `advance`, `runPosted` and
/// `pollReadable`. Handles may outlive the loop.
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

    /// Moves the clock on and fires what falls due on the way, in order of time and of making, what
    /// is posted running in between. During a call the clock shows the time at which it was due.
    void advance(std::chrono::milliseconds duration);

    /// Runs what is posted, including what that posts in turn; gives the number of calls.
    std::size_t runPosted();

    /// Waits up to `timeout` of real time for a watched descriptor, calls for the readable and runs
    /// what is posted; the clock stays. Gives the number of watches called.
    std::size_t pollReadable(std::chrono::milliseconds timeout);

 private:
    struct Entry;
    struct EntryHandle;
    // The handle owns its entry, which is shared only while it is called.
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
