// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

namespace tonquil {

/// Runs work that may block on a disk, to keep it out of the event loop: one job at a time, in the
/// order added.
class DiskQueue {
 public:
    using Work = std::function<void()>;

    virtual ~DiskQueue() = default;

    /// Runs `work` outside the event loop, so it may only touch data it owns, then `done` on the
    /// event loop.
    virtual void add(Work work, Work done) = 0;
    /// Blocks until every job has finished, including those that `done` callbacks add. Calls each
    /// `done` itself.
    virtual void finish() = 0;
};

}  // namespace tonquil
