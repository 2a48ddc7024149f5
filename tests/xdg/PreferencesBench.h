// SPDX-License-Identifier: MIT
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "platform/xdg/PropertyListPreferences.h"
#include "plist/PropertyListReader.h"
#include "plist/PropertyListWriter.h"
#include "tests/files/FolderContents.h"
#include "tests/support/ManualRunLoop.h"

namespace tonquil {

/// A disk that is never waited for.
class PromptDisk final : public DiskQueue {
 public:
    void add(Work work, Work done) override {
        work();
        done();
    }
    void finish() override {}
};

/// A store on a real file, with a run loop and a log of its own.
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
    /// Handles what the system has to tell of the folder: it tells at once, so nothing is waited
    /// for but by the store itself. Gives how often the store told of a change.
    int handleEvents() {
        const int before = told;
        while (loop.pollReadable(std::chrono::milliseconds(0)) > 0) {
            loop.advance(std::chrono::milliseconds(500));
        }
        return told - before;
    }
    [[nodiscard]] std::int64_t operator[](std::string_view key) const {
        return store->integerForKey(key);
    }

    ManualRunLoop loop;
    PromptDisk disk;
    /// Whether the panel tells that saving fails.
    bool sign = false;
    std::vector<std::string> log;
    int told = 0;
    std::unique_ptr<PropertyListPreferences> store;
    std::unique_ptr<PreferencesStore::Subscription> subscription;
};

/// What the file holds; null where it cannot be read.
[[nodiscard]] inline PropertyValue storedIn(const std::filesystem::path& file) {
    const std::string text = contentsOf(file);
    return readPropertyList(std::vector<std::uint8_t>(text.begin(), text.end())).value_or(nullptr);
}

/// Saves as another program would: in place, or as a new file.
inline void store(const std::filesystem::path& file, const PropertyValue& value) {
    putContents(file, writePropertyList(value).value());
}

}  // namespace tonquil
