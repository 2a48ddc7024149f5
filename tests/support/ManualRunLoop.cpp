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
    explicit EntryHandle(std::shared_ptr<Entry> entry) : m_entry(std::move(entry)) {}
    EntryHandle(const EntryHandle&) = delete;
    EntryHandle& operator=(const EntryHandle&) = delete;

    ~EntryHandle() override {
        m_entry->active = false;
        // A function that is running must not be destroyed under itself; `call` does it after.
        if (!m_entry->running) {
            m_entry->call = nullptr;
        }
    }

 private:
    std::shared_ptr<Entry> m_entry;
};

std::unique_ptr<RunLoop::Handle> ManualRunLoop::add(Entries& entries,
                                                    std::shared_ptr<Entry> entry) {
    entry->order = m_order++;
    entries.push_back(entry);
    return std::make_unique<EntryHandle>(std::move(entry));
}

std::unique_ptr<RunLoop::Handle> ManualRunLoop::callOnce(std::chrono::milliseconds delay,
                                                         Call call) {
    auto entry = std::make_shared<Entry>();
    entry->call = std::move(call);
    entry->due = m_now + std::max(delay, std::chrono::milliseconds::zero());
    return add(m_timers, std::move(entry));
}

std::unique_ptr<RunLoop::Handle> ManualRunLoop::callRepeatedly(std::chrono::milliseconds interval,
                                                               Call call) {
    auto entry = std::make_shared<Entry>();
    entry->call = std::move(call);
    entry->interval = std::max(interval, std::chrono::milliseconds(1));
    entry->due = m_now + entry->interval;
    return add(m_timers, std::move(entry));
}

std::unique_ptr<RunLoop::Handle> ManualRunLoop::watchReadable(int descriptor, Call call) {
    auto entry = std::make_shared<Entry>();
    entry->call = std::move(call);
    entry->descriptor = descriptor;
    return add(m_watches, std::move(entry));
}

void ManualRunLoop::post(Call call) {
    m_posted.push_back(std::move(call));
}

void ManualRunLoop::advance(std::chrono::milliseconds duration) {
    const Clock::time_point end = m_now + duration;
    runPosted();
    while (const auto timer = nextTimer(end)) {
        m_now = std::max(m_now, timer->due);
        if (timer->interval == std::chrono::milliseconds::zero()) {
            timer->active = false;
        } else {
            timer->due += timer->interval;
            timer->order = m_order++;
        }
        call(*timer);
        runPosted();
    }
    m_now = std::max(m_now, end);
}

std::size_t ManualRunLoop::runPosted() {
    std::size_t count = 0;
    while (!m_posted.empty()) {
        const Call call = std::move(m_posted.front());
        m_posted.pop_front();
        call();
        ++count;
    }
    return count;
}

std::size_t ManualRunLoop::pollReadable(std::chrono::milliseconds timeout) {
    removeEnded(m_watches);
    const Entries watches = m_watches;
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
    removeEnded(m_timers);
    const auto next =
        std::min_element(m_timers.begin(), m_timers.end(), [](const auto& left, const auto& right) {
            return std::tie(left->due, left->order) < std::tie(right->due, right->order);
        });
    return next == m_timers.end() || (*next)->due > end ? nullptr : *next;
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
