// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>

#include "app/desktop/ProgramWindows.h"
#include "app/desktop/TargetWindows.h"
#include "values/PropertyValue.h"

namespace tonquil {

/// Which windows a session that ends brings back when it starts again: the preferences and the
/// floating targets.
class RestorableWindows {
 public:
    RestorableWindows(ProgramWindows& windows, TargetWindows& targets)
        : _windows(windows), _targets(targets) {}

    /// Shows the floating window of targets, with the kind shown last where none is asked for.
    void openTargetWindow(std::optional<TargetKind> kind);
    /// A dictionary of the states of the windows that are shown, by their identifiers.
    [[nodiscard]] PropertyValue restorableWindows() const;
    /// Shows a window as it was; false where there is none of this identifier.
    bool restoreWindowWithIdentifier(std::string_view identifier, const PropertyValue& state);

 private:
    ProgramWindows& _windows;
    TargetWindows& _targets;
    /// Nothing before the floating window of targets is made.
    std::optional<bool> _isTargetWindowRestorable;
};

}  // namespace tonquil
