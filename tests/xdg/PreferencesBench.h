// SPDX-License-Identifier: MIT
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <deque>
#include <memory>
#include <string>
#include <vector>

#include "platform/xdg/PropertyListPreferences.h"
#include "plist/PropertyListReader.h"
#include "plist/PropertyListWriter.h"
#include "tests/files/FolderContents.h"
#include "tests/support/ManualRunLoop.h"

namespace tonquil {

/// A disk that a test can block; otherwise it never takes any time.
class ManualDisk final : public DiskQueue {
 public:
    void add(Work work, Work done) override {
        _jobs.emplace_back(std::move(work), std::move(done));
        if (!isHeldUp) {
            finish();
        }
    }
    void finish() override {
        while (!_jobs.empty()) {
            const auto [work, done] = std::move(_jobs.front());
            _jobs.pop_front();
            work();
            done();
        }
    }

    bool isHeldUp = false;

 private:
    std::deque<std::pair<Work, Work>> _jobs;
};

/// A store on a real file, with its own run loop and log.
struct PreferencesProcess {
    explicit PreferencesProcess(const std::filesystem::path& file,
                                std::chrono::milliseconds longestWait = {})
        : store(std::make_unique<PropertyListPreferences>(
              file, loop, disk,
              SaveReports{
                  .log = [this](std::string_view line) { log.emplace_back(line); },
                  .showProblem = [this](const auto& problem) { sign = problem.has_value(); }},
              longestWait)),
          subscription(store->subscribe([this] { ++told; })) {}

    void set(std::string_view key, PropertyValue value) {
        store->setValue(key, std::move(value));
        loop.runPosted();
    }
    /// Handles the folder's pending file-system events: the kernel reports them at once, so only
    /// the store itself waits. Returns how often the store notified of a change.
    int handleEvents() {
        const int before = told;
        do {
            loop.advance(std::chrono::milliseconds(500));
        } while (loop.pollReadable(std::chrono::milliseconds(0)) > 0);
        return told - before;
    }
    [[nodiscard]] std::int64_t operator[](std::string_view key) const {
        return store->integerForKey(key);
    }

    ManualRunLoop loop;
    ManualDisk disk;
    /// Whether the panel shows that saving fails.
    bool sign = false;
    std::vector<std::string> log;
    int told = 0;
    std::unique_ptr<PropertyListPreferences> store;
    std::unique_ptr<PreferencesStore::Subscription> subscription;
};

/// The file's content; null if it cannot be read.
[[nodiscard]] inline PropertyValue storedIn(const std::filesystem::path& file) {
    const std::string text = contentsOf(file);
    return readPropertyList(std::vector<std::uint8_t>(text.begin(), text.end())).value_or(nullptr);
}

/// Saves as another program would: in place, or as a new file.
inline void store(const std::filesystem::path& file, const PropertyValue& value) {
    putContents(file, writePropertyList(value).value());
}

}  // namespace tonquil
