// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <optional>

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
    /// The kind that the floating window shows while it is shown.
    [[nodiscard]] virtual std::optional<TargetKind> floatingTarget() const = 0;
    /// Covers a display with a target until it is clicked. `closed`, where there is one, is called
    /// once when that cover goes, beside those of earlier calls for it.
    virtual void coverDisplay(DisplayID display, TargetKind kind,
                              std::function<void()> closed = {}) = 0;
    /// Takes the cover off a display, if it has one.
    virtual void uncoverDisplay(DisplayID display) = 0;
    /// What covers a display; nothing where it can be seen.
    [[nodiscard]] virtual std::optional<TargetKind> visibleCover(DisplayID display) const = 0;
    /// The kind of a display's cover, seen or not; the colour target where it never had one.
    [[nodiscard]] virtual TargetKind coverKind(DisplayID display) const = 0;
    /// Displays have come, gone or moved: covers follow theirs.
    virtual void displaysChanged() = 0;
    /// The sentence below the patterns of the floating window.
    virtual void setHintsShown(bool areShown) = 0;
    /// Remembers the floating window for the next run.
    virtual void saveFrame() = 0;
};

}  // namespace tonquil
