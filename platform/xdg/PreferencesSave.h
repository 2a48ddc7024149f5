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

/// One save of settings that several processes may have changed: everything about it that may wait
/// for a disk or for another process.
///
/// It has its own copy of all it needs, so that it may run on any thread.
struct PreferencesSave {
    enum class Outcome : std::uint8_t {
        Saved,
        Locked,  ///< Another process saves at the moment; nothing was done.
        Failed,
    };

    PropertyListFile file;
    /// What counts as stored, and the keys in it that were set or, where there is none, taken away.
    PropertyValue values;
    std::set<std::string> changed;
    /// How long to wait for another process before saving in spite of it. Without it nothing is
    /// waited for, and nothing done then.
    std::optional<std::chrono::milliseconds> longestWait = {};

    Outcome outcome = Outcome::Failed;
    Problem problem = {};
    /// A damaged file was moved aside, and all values count as changed.
    bool hasMovedAside = false;
    /// Lines for the log.
    std::vector<std::string> notes = {};

    /// Lays the changed keys over what the file holds by now. Makes the folder.
    void run();

 private:
    [[nodiscard]] Result<void> merge();
};

}  // namespace tonquil
