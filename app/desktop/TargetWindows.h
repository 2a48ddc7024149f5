// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "screens/DisplayIdentity.h"

namespace tonquil {

/// The kinds of calibration target.
enum class TargetKind : std::int32_t { Color = 0, Grayscale = 1 };

struct NamedDisplay {
    DisplayID display = 0;
    std::string name;
};

/// The windows that cover displays, or parts of them: calibration targets, and what tells displays
/// apart.
class TargetWindows {
 public:
    virtual ~TargetWindows() = default;

    /// Shows the floating window with its last position and contents.
    virtual void openTargetWindow() = 0;
    /// The same with a target of this kind.
    virtual void openTargetWindow(TargetKind kind) = 0;
    /// The kind shown in the floating window; nothing while it is hidden.
    [[nodiscard]] virtual std::optional<TargetKind> floatingTarget() const = 0;
    /// Covers a display with a target until the user clicks it. `closed`, if given, is called once
    /// when that cover closes, as are those of earlier calls for it.
    virtual void coverDisplay(DisplayID display, TargetKind kind,
                              std::function<void()> closed = {}) = 0;
    /// Removes a display's cover, if it has one.
    virtual void uncoverDisplay(DisplayID display) = 0;
    /// The target that covers a display; nothing if it is not covered.
    [[nodiscard]] virtual std::optional<TargetKind> visibleCover(DisplayID display) const = 0;
    /// The kind of a display's cover, visible or not; the colour target if it never had one.
    [[nodiscard]] virtual TargetKind coverKind(DisplayID display) const = 0;
    /// Call it after displays were added, removed or moved: covers follow their displays.
    virtual void displaysChanged() = 0;
    /// Shows on each of these displays, for two seconds, its position in the list (from 1) and its
    /// name.
    virtual void identify(const std::vector<NamedDisplay>& displays) = 0;
    /// Shows or hides the sentence below the patterns of the floating window.
    virtual void setHintsShown(bool areShown) = 0;
    /// Saves the floating window's position for the next run.
    virtual void saveFrame() = 0;
};

}  // namespace tonquil
