// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>

#include "screens/Geometry.h"

namespace tonquil {

/// The window system's ID of a window.
using WindowID = std::uint64_t;

/// Window operations that Qt does not offer.
///
/// The native window must exist at the time of a call: Qt may delay its creation until after the
/// current event. A window manager forgets a window's properties when it is hidden, so the commands
/// are repeated each time before it is shown. Without a connection, or if the window system does
/// not support an operation, commands do nothing, and queries return false unless they say
/// otherwise.
class WindowSystem {
 public:
    virtual ~WindowSystem() = default;

    /// Shows the window on every workspace.
    virtual void keepOnAllWorkspaces(WindowID window) = 0;
    /// Moves a window from another workspace to the current one.
    virtual void bringToActiveWorkspace(WindowID window) = 0;
    /// Un-minimises, raises and focuses a window at the user's request, bypassing focus stealing
    /// prevention. A hidden window stays hidden.
    virtual void activate(WindowID window) = 0;
    /// Removes the window from the task bar and pager, or adds it again.
    virtual void skipTaskbar(WindowID window, bool skip) = 0;

    /// Keeps the aspect ratio `width` : `height` when the user resizes the window.
    virtual void keepProportions(WindowID window, std::uint32_t width, std::uint32_t height) = 0;

    /// False only if the window is known to be on another workspace.
    [[nodiscard]] virtual bool isOnActiveWorkspace(WindowID window) const = 0;
    /// In pixels of top-down desktop space.
    [[nodiscard]] virtual std::optional<Point> pointerLocation() const = 0;

    /// Whether a compositor is currently running, so that translucent windows are blended.
    [[nodiscard]] virtual bool isCompositing() const = 0;
    /// Whether a window manager is currently running.
    [[nodiscard]] virtual bool hasWindowManager() const = 0;
};

}  // namespace tonquil
