// SPDX-License-Identifier: MIT
#pragma once

#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>
#include <thread>

#include "files/DiskQueue.h"
#include "files/FileHandle.h"
#include "foundation/RunLoop.h"

namespace tonquil {

/// A thread that does nothing but the work it is given. The only one beside the event loop's.
///
/// Where there can be no thread, the work is done by `add`.
class DiskThread final : public DiskQueue {
 public:
    /// `runLoop` must outlive it.
    explicit DiskThread(RunLoop& runLoop);
    /// Finishes all work, and waits for the thread's end.
    ~DiskThread() override;
    DiskThread(const DiskThread&) = delete;
    DiskThread& operator=(const DiskThread&) = delete;

    void add(Work work, Work done) override;
    void finish() override;

 private:
    struct Job {
        Work work;
        Work done;
    };

    void startThread();
    /// What the thread does.
    void run();
    /// Calls what is due on the event loop; false where nothing was.
    bool callDone();

    FileHandle _event;
    std::unique_ptr<RunLoop::Handle> _watch;
    std::mutex _mutex;
    std::condition_variable _changed;
    // All of these under the mutex.
    std::deque<Job> _jobs;
    std::deque<Work> _done;
    bool _isBusy = false;
    bool _isEnding = false;
    std::thread _thread;
};

}  // namespace tonquil
