// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>

#include "screens/Geometry.h"

namespace tonquil {

/// A window as the window system numbers it.
using WindowID = std::uint64_t;

/// What a panel asks of the window system beyond what the window toolkit offers.
///
/// The window must exist in the window system by the time of a call: a toolkit may hold its
/// creation back until the event being handled is over. What a window manager keeps of a window it
/// forgets when that is hidden, so the commands are repeated before each showing. Where the window
/// system has gone, or knows no such thing, commands do nothing and questions are answered with
/// false.
class WindowSystem {
 public:
    virtual ~WindowSystem() = default;

    /// Shows the window whichever workspace the person switches to.
    virtual void keepOnAllWorkspaces(WindowID window) = 0;
    /// Moves a window that is on another workspace to the one that the person is at.
    virtual void bringToActiveWorkspace(WindowID window) = 0;
    /// Un-minimises and raises a window, and gives it the keyboard, because the person asks for it:
    /// whatever keeps programs from taking the keyboard by themselves does not count here. A window
    /// that is not shown stays hidden.
    virtual void activate(WindowID window) = 0;
    /// Leaves the window out of the task bar and of the overview of workspaces, or puts it back.
    virtual void skipTaskbar(WindowID window, bool skip) = 0;

    /// Holds the window to the proportions `width` : `height` whenever the person resizes it.
    virtual void keepProportions(WindowID window, std::uint32_t width, std::uint32_t height) = 0;

    /// False only where the window is known to be on another workspace.
    [[nodiscard]] virtual bool isOnActiveWorkspace(WindowID window) const = 0;
    /// In pixels of the top-down desktop space.
    [[nodiscard]] virtual std::optional<Point> pointerLocation() const = 0;

    /// Whether translucent windows are blended with what lies below them at the moment.
    [[nodiscard]] virtual bool isCompositing() const = 0;
    /// Whether a window manager answers to requests at the moment.
    [[nodiscard]] virtual bool hasWindowManager() const = 0;
};

}  // namespace tonquil
