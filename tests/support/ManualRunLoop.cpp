// SPDX-License-Identifier: MIT
#include "tests/support/ManualRunLoop.h"

#include <poll.h>

#include <algorithm>
#include <cerrno>
#include <tuple>
#include <utility>

namespace tonquil {

struct ManualRunLoop::Entry {
    Call call;
    Clock::time_point due{};
    /// Zero for a timer that fires once.
    std::chrono::milliseconds interval{};
    std::uint64_t order = 0;
    int descriptor = -1;
    bool active = true;
    bool running = false;
};

class ManualRunLoop::EntryHandle final : public Handle {
 public:
    explicit EntryHandle(std::shared_ptr<Entry> entry) : _entry(std::move(entry)) {}
    EntryHandle(const EntryHandle&) = delete;
    EntryHandle& operator=(const EntryHandle&) = delete;

    ~EntryHandle() override {
        _entry->active = false;
        // A function that is running must not be destroyed under itself; `call` does it after.
        if (!_entry->running) {
            _entry->call = nullptr;
        }
    }

 private:
    std::shared_ptr<Entry> _entry;
};

std::unique_ptr<RunLoop::Handle> ManualRunLoop::add(Entries& entries, Entry entry) {
    entry.order = _order++;
    entries.push_back(std::make_shared<Entry>(std::move(entry)));
    return std::make_unique<EntryHandle>(entries.back());
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

void ManualRunLoop::post(Call call) {
    _posted.push_back(std::move(call));
}

void ManualRunLoop::advance(std::chrono::milliseconds duration) {
    const Clock::time_point end = _now + duration;
    runPosted();
    while (const auto timer = nextTimer(end)) {
        _now = std::max(_now, timer->due);
        if (timer->interval == std::chrono::milliseconds::zero()) {
            timer->active = false;
        } else {
            timer->due += timer->interval;
            timer->order = _order++;
        }
        call(*timer);
        runPosted();
    }
    _now = std::max(_now, end);
}

std::size_t ManualRunLoop::runPosted() {
    std::size_t count = 0;
    while (!_posted.empty()) {
        const Call call = std::move(_posted.front());
        _posted.pop_front();
        call();
        ++count;
    }
    return count;
}

std::size_t ManualRunLoop::pollReadable(std::chrono::milliseconds timeout) {
    removeEnded(_watches);
    const Entries watches = _watches;
    std::vector<pollfd> polled;
    polled.reserve(watches.size());
    for (const auto& watch : watches) {
        polled.push_back({watch->descriptor, POLLIN, 0});
    }
    while (poll(polled.data(), polled.size(), static_cast<int>(timeout.count())) < 0) {
        if (errno != EINTR) {
            return 0;
        }
    }
    std::size_t count = 0;
    for (std::size_t index = 0; index < watches.size(); ++index) {
        // An earlier call of this round may have ended the watch.
        if (polled[index].revents != 0 && watches[index]->active) {
            call(*watches[index]);
            runPosted();
            ++count;
        }
    }
    return count;
}

std::shared_ptr<ManualRunLoop::Entry> ManualRunLoop::nextTimer(Clock::time_point end) {
    removeEnded(_timers);
    const auto next =
        std::min_element(_timers.begin(), _timers.end(), [](const auto& left, const auto& right) {
            return std::tie(left->due, left->order) < std::tie(right->due, right->order);
        });
    return next == _timers.end() || (*next)->due > end ? nullptr : *next;
}

void ManualRunLoop::call(Entry& entry) {
    // A call that drives the loop itself may meet its own timer again.
    const bool wasRunning = std::exchange(entry.running, true);
    entry.call();
    entry.running = wasRunning;
    if (!entry.active && !entry.running) {
        entry.call = nullptr;
    }
}

void ManualRunLoop::removeEnded(Entries& entries) {
    std::erase_if(entries, [](const auto& entry) { return !entry->active; });
}

}  // namespace tonquil
