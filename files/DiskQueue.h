// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

namespace tonquil {

/// Does what may have to wait for a disk, so that the event loop need not: one piece of work after
/// the other, in the order in which they were added.
class DiskQueue {
 public:
    using Work = std::function<void()>;

    virtual ~DiskQueue() = default;

    /// Runs `work` away from the event loop, where it may touch only what it holds itself, and then
    /// `done` as an event of the loop.
    virtual void add(Work work, Work done) = 0;
    /// Waits until everything that was added is done, what `done` adds included. Calls each `done`
    /// itself.
    virtual void finish() = 0;
};

}  // namespace tonquil
