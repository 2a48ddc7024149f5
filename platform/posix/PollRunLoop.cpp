// SPDX-License-Identifier: MIT
#include "platform/posix/PollRunLoop.h"

#include <poll.h>

#include <algorithm>
#include <iterator>
#include <utility>

namespace tonquil {

struct PollRunLoop::Entry {
    Call call;
    Clock::time_point due{};
    /// Zero for a single-shot timer.
    std::chrono::milliseconds interval{};
    int descriptor = -1;
    bool isActive = true;
};

class PollRunLoop::EntryHandle final : public Handle {
 public:
    explicit EntryHandle(std::shared_ptr<Entry> entry) : _entry(std::move(entry)) {}
    ~EntryHandle() override { _entry->isActive = false; }
    EntryHandle(const EntryHandle&) = delete;
    EntryHandle& operator=(const EntryHandle&) = delete;

 private:
    std::shared_ptr<Entry> _entry;
};

std::unique_ptr<RunLoop::Handle> PollRunLoop::add(Entries& entries, std::shared_ptr<Entry> entry) {
    entries.push_back(entry);
    return std::make_unique<EntryHandle>(std::move(entry));
}

std::unique_ptr<RunLoop::Handle> PollRunLoop::callOnce(std::chrono::milliseconds delay, Call call) {
    auto entry = std::make_shared<Entry>();
    entry->call = std::move(call);
    entry->due = now() + std::max(delay, std::chrono::milliseconds::zero());
    return add(_timers, std::move(entry));
}

std::unique_ptr<RunLoop::Handle> PollRunLoop::callRepeatedly(std::chrono::milliseconds interval,
                                                             Call call) {
    auto entry = std::make_shared<Entry>();
    entry->call = std::move(call);
    entry->interval = std::max(interval, std::chrono::milliseconds(1));
    entry->due = now() + entry->interval;
    return add(_timers, std::move(entry));
}

std::unique_ptr<RunLoop::Handle> PollRunLoop::watchReadable(int descriptor, Call call) {
    auto entry = std::make_shared<Entry>();
    entry->call = std::move(call);
    entry->descriptor = descriptor;
    return add(_watches, std::move(entry));
}

void PollRunLoop::post(Call call) {
    _posted.push_back(std::move(call));
}

void PollRunLoop::run() {
    _isStopped = false;
    const auto isEnded = [](const auto& entry) { return !entry->isActive; };
    while (!_isStopped) {
        runPosted();
        std::erase_if(_timers, isEnded);
        std::erase_if(_watches, isEnded);
        if (_isStopped || (_posted.empty() && _timers.empty() && _watches.empty())) {
            return;
        }
        waitForDescriptors();
        runTimers();
    }
}

// Calls posted meanwhile wait for the next turn, so that they cannot starve the others.
void PollRunLoop::runPosted() {
    for (auto count = _posted.size(); count > 0 && !_isStopped; --count) {
        const Call call = std::move(_posted.front());
        _posted.pop_front();
        call();
    }
}

void PollRunLoop::runTimers() {
    const auto time = now();
    Entries due;
    std::ranges::copy_if(_timers, std::back_inserter(due),
                         [time](const auto& timer) { return timer->due <= time; });
    std::ranges::stable_sort(due, {}, [](const auto& timer) { return timer->due; });
    for (const auto& timer : due) {
        if (_isStopped) {
            return;
        }
        if (!timer->isActive) {
            continue;
        }
        if (timer->interval == std::chrono::milliseconds::zero()) {
            timer->isActive = false;
        } else {
            timer->due += timer->interval;
            timer->due = timer->due > time ? timer->due : time + timer->interval;
        }
        timer->call();
    }
}

void PollRunLoop::waitForDescriptors() {
    const Entries watches = _watches;
    std::vector<pollfd> polled;
    polled.reserve(watches.size());
    for (const auto& watch : watches) {
        polled.push_back({watch->descriptor, POLLIN, 0});
    }
    // Being interrupted by a signal counts as a timeout.
    if (poll(polled.data(), polled.size(), waitingTime()) <= 0) {
        return;
    }
    for (std::size_t i = 0; i < watches.size() && !_isStopped; ++i) {
        if (polled[i].revents != 0 && watches[i]->isActive) {
            watches[i]->call();
        }
    }
}

/// In milliseconds, as for poll(2); -1 for no timeout.
int PollRunLoop::waitingTime() const {
    if (!_posted.empty()) {
        return 0;
    }
    if (_timers.empty()) {
        return -1;
    }
    const auto next = std::ranges::min(_timers, {}, [](const auto& timer) { return timer->due; });
    const auto time = std::chrono::ceil<std::chrono::milliseconds>(next->due - now());
    constexpr std::chrono::milliseconds longest = std::chrono::hours(1);
    return static_cast<int>(std::clamp(time, std::chrono::milliseconds::zero(), longest).count());
}

}  // namespace tonquil
