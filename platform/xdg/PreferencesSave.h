// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "platform/xdg/PropertyListFile.h"

namespace tonquil {

/// One save of settings that several processes may have changed: every step that may wait for a
/// disk or another process.
///
/// It has its own copy of everything it needs, so that it can run on any thread.
struct PreferencesSave {
    enum class Outcome : std::uint8_t {
        Saved,
        Locked,  ///< Another process is saving; nothing was done.
        Failed,
    };

    PropertyListFile file;
    /// The stored values, and the keys among them that were set or, if absent, removed.
    PropertyValue values;
    std::set<std::string> changed;
    /// How long to wait for another process before saving anyway. If not set, it does not wait, and
    /// does nothing when the file is locked.
    std::optional<std::chrono::milliseconds> longestWait = {};

    Outcome outcome = Outcome::Failed;
    Problem problem = {};
    /// A damaged file was moved aside, and all values count as changed.
    bool hasMovedAside = false;
    /// Messages for the log.
    std::vector<std::string> notes = {};

    /// Applies the changed keys on top of the file's current content. Creates the folder.
    void run();

 private:
    [[nodiscard]] Result<void> merge();
};

}  // namespace tonquil
