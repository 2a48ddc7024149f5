// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>

#include "app/desktop/ProgramWindows.h"
#include "app/desktop/TargetWindows.h"
#include "values/PropertyValue.h"

namespace tonquil {

/// The windows that session restore brings back: the preferences and the floating targets.
class RestorableWindows {
 public:
    RestorableWindows(ProgramWindows& windows, TargetWindows& targets)
        : _windows(windows), _targets(targets) {}

    /// Shows the floating targets window, with the last kind shown if none is given.
    void openTargetWindow(std::optional<TargetKind> kind);
    /// A dictionary of the states of the visible windows, by identifier.
    [[nodiscard]] PropertyValue restorableWindows() const;
    /// Restores a window; false if the identifier is unknown.
    bool restoreWindowWithIdentifier(std::string_view identifier, const PropertyValue& state);

 private:
    ProgramWindows& _windows;
    TargetWindows& _targets;
    /// Nothing until the floating targets window is created.
    std::optional<bool> _isTargetWindowRestorable;
};

}  // namespace tonquil
