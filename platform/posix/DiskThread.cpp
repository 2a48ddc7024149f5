// SPDX-License-Identifier: MIT
#include "platform/posix/DiskThread.h"

#include <sys/eventfd.h>
#include <unistd.h>

#include <csignal>
#include <cstdint>
#include <system_error>
#include <utility>

namespace tonquil {

DiskThread::DiskThread(RunLoop& runLoop) : _event(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {
    if (!_event.isOpen()) {
        return;
    }
    _watch = runLoop.watchReadable(_event.get(), [this] {
        std::uint64_t count = 0;
        [[maybe_unused]] const ssize_t readBytes = ::read(_event.get(), &count, sizeof count);
        callDone();
    });
    startThread();
}

DiskThread::~DiskThread() {
    finish();
    {
        const std::lock_guard lock(_mutex);
        _isEnding = true;
    }
    _changed.notify_all();
    if (_thread.joinable()) {
        _thread.join();
    }
}

// A thread inherits the signal mask; signals are handled on the event loop's thread.
void DiskThread::startThread() {
    sigset_t all;
    sigset_t before;
    ::sigfillset(&all);
    ::pthread_sigmask(SIG_SETMASK, &all, &before);
    try {
        _thread = std::thread([this] { run(); });
    } catch (const std::system_error&) {
        // The system could not create a thread: `add` does the work.
        _thread = {};
    }
    ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
}

void DiskThread::add(Work work, Work done) {
    if (!_thread.joinable()) {
        work();
        done();
        return;
    }
    {
        const std::lock_guard lock(_mutex);
        _jobs.push_back({std::move(work), std::move(done)});
    }
    _changed.notify_all();
}

void DiskThread::run() {
    std::unique_lock lock(_mutex);
    while (true) {
        _changed.wait(lock, [this] { return !_jobs.empty() || _isEnding; });
        if (_jobs.empty()) {
            return;
        }
        Job job = std::move(_jobs.front());
        _jobs.pop_front();
        _isBusy = true;
        lock.unlock();
        job.work();
        lock.lock();
        _isBusy = false;
        _done.push_back(std::move(job.done));
        const std::uint64_t one = 1;
        [[maybe_unused]] const ssize_t writeBytes = ::write(_event.get(), &one, sizeof one);
        _changed.notify_all();
    }
}

// One at a time, because each may add work or wait for all of it.
bool DiskThread::callDone() {
    bool hasCalled = false;
    while (true) {
        Work done;
        {
            const std::lock_guard lock(_mutex);
            if (_done.empty()) {
                return hasCalled;
            }
            done = std::move(_done.front());
            _done.pop_front();
        }
        done();
        hasCalled = true;
    }
}

void DiskThread::finish() {
    do {
        std::unique_lock lock(_mutex);
        _changed.wait(lock, [this] { return _jobs.empty() && !_isBusy; });
    } while (callDone());
}

}  // namespace tonquil
