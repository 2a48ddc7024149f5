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

/// A worker thread for disk jobs, the only thread besides the event loop's.
///
/// If no thread can be created, `add` runs the jobs itself.
class DiskThread final : public DiskQueue {
 public:
    /// `runLoop` must outlive it.
    explicit DiskThread(RunLoop& runLoop);
    /// Finishes all jobs and joins the thread.
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
    /// The thread's main function.
    void run();
    /// Runs due callbacks on the event loop; returns false if there were none.
    bool callDone();

    FileHandle _event;
    std::unique_ptr<RunLoop::Handle> _watch;
    std::mutex _mutex;
    std::condition_variable _changed;
    // All guarded by the mutex.
    std::deque<Job> _jobs;
    std::deque<Work> _done;
    bool _isBusy = false;
    bool _isEnding = false;
    std::thread _thread;
};

}  // namespace tonquil
