// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "screens/DisplayIdentity.h"

namespace tonquil {

/// The kinds of calibration target.
enum class TargetKind : std::int32_t { Color = 0, Grayscale = 1 };

/// The windows that show calibration targets, as the controller sees them.
class TargetWindows {
 public:
    virtual ~TargetWindows() = default;

    /// Shows the floating window, where and as it was last.
    virtual void openTargetWindow() = 0;
    /// The same, with a target of this kind.
    virtual void openTargetWindow(TargetKind kind) = 0;
    /// Covers a display with a target until it is clicked.
    virtual void coverDisplay(DisplayID display, TargetKind kind) = 0;
    /// Displays have come, gone or moved: covers follow theirs.
    virtual void displaysChanged() = 0;
    /// Remembers the floating window for the next run.
    virtual void saveFrame() = 0;
};

}  // namespace tonquil
