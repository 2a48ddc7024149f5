// SPDX-License-Identifier: MIT
#include "tests/support/ManualRunLoop.h"

#include <poll.h>

#include <algorithm>
#include <tuple>
#include <utility>

namespace tonquil {

struct ManualRunLoop::Entry {
    Call call;
    Clock::time_point due{};
    /// Zero for a single-shot timer.
    std::chrono::milliseconds interval{};
    int descriptor = -1;
    std::uint64_t order = 0;
};

struct ManualRunLoop::EntryHandle final : Handle {
    std::shared_ptr<Entry> entry;
};

std::unique_ptr<RunLoop::Handle> ManualRunLoop::add(Entries& entries, Entry entry) {
    entry.order = _order++;
    auto handle = std::make_unique<EntryHandle>();
    handle->entry = std::make_shared<Entry>(std::move(entry));
    std::erase_if(entries, [](const auto& each) { return each.expired(); });
    entries.push_back(handle->entry);
    return handle;
}

std::unique_ptr<RunLoop::Handle> ManualRunLoop::callOnce(std::chrono::milliseconds delay,
                                                         Call call) {
    return add(_timers, {.call = std::move(call), .due = _now + std::max(delay, {})});
}

std::unique_ptr<RunLoop::Handle> ManualRunLoop::callRepeatedly(std::chrono::milliseconds interval,
                                                               Call call) {
    const auto least = std::max(interval, std::chrono::milliseconds(1));
    return add(_timers, {.call = std::move(call), .due = _now + least, .interval = least});
}

std::unique_ptr<RunLoop::Handle> ManualRunLoop::watchReadable(int descriptor, Call call) {
    return add(_watches, {.call = std::move(call), .descriptor = descriptor});
}

void ManualRunLoop::advance(std::chrono::milliseconds duration) {
    const Clock::time_point end = _now + duration;
    runPosted();
    while (const auto timer = nextTimer(end)) {
        _now = std::max(_now, timer->due);
        timer->due =
            timer->interval.count() == 0 ? Clock::time_point::max() : timer->due + timer->interval;
        timer->order = _order++;
        timer->call();
        runPosted();
    }
    _now = std::max(_now, end);
}

std::shared_ptr<ManualRunLoop::Entry> ManualRunLoop::nextTimer(Clock::time_point end) {
    std::shared_ptr<Entry> next;
    for (const auto& weak : _timers) {
        const auto timer = weak.lock();
        if (timer && timer->due <= end &&
            (!next || std::tie(timer->due, timer->order) < std::tie(next->due, next->order))) {
            next = timer;
        }
    }
    return next;
}

std::size_t ManualRunLoop::runPosted() {
    std::size_t count = 0;
    for (; !_posted.empty(); ++count) {
        const Call call = std::move(_posted.front());
        _posted.pop_front();
        call();
    }
    return count;
}

std::size_t ManualRunLoop::pollReadable(std::chrono::milliseconds timeout) {
    const Entries watches = _watches;
    std::vector<pollfd> polled;
    for (const auto& weak : watches) {
        const auto watch = weak.lock();
        // poll() ignores a negative descriptor.
        polled.push_back({watch ? watch->descriptor : -1, POLLIN, 0});
    }
    poll(polled.data(), polled.size(), static_cast<int>(timeout.count()));
    std::size_t count = 0;
    for (std::size_t index = 0; index < watches.size(); ++index) {
        // An earlier call of this round may have ended the watch.
        const auto watch = watches[index].lock();
        if (watch && polled[index].revents != 0) {
            watch->call();
            runPosted();
            ++count;
        }
    }
    return count;
}

}  // namespace tonquil
