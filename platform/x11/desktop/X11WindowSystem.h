// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <vector>

#include "app/panel/WindowSystem.h"
#include "platform/x11/X11Connection.h"

namespace tonquil {

/// The selection owned by a running compositor of the connection's screen.
[[nodiscard]] xcb_atom_t compositorSelection(const X11Connection& connection);

/// Talks to an X11 window manager by the shared conventions (EWMH).
///
/// A managed window, shown or minimised, is changed by a message to the window manager; for any
/// other the properties are set, for a window manager to read when it starts managing the window.
class X11WindowSystem final : public WindowSystem {
 public:
    /// Connects to `display` like X11Connection::open.
    [[nodiscard]] static Result<std::unique_ptr<X11WindowSystem>> open(const char* display);

    void keepOnAllWorkspaces(WindowID window) override;
    void bringToActiveWorkspace(WindowID window) override;
    void activate(WindowID window) override;
    void skipTaskbar(WindowID window, bool skip) override;
    void keepProportions(WindowID window, std::uint32_t width, std::uint32_t height) override;
    [[nodiscard]] bool isOnActiveWorkspace(WindowID window) const override;
    [[nodiscard]] std::optional<Point> pointerLocation() const override;
    [[nodiscard]] bool isCompositing() const override;
    [[nodiscard]] bool hasWindowManager() const override;

 private:
    explicit X11WindowSystem(std::unique_ptr<X11Connection> connection);
    [[nodiscard]] bool isManaged(xcb_window_t window) const;
    void sendToManager(xcb_window_t window, xcb_atom_t type,
                       const std::array<std::uint32_t, 5>& data) const;
    void setProperty(xcb_window_t window, xcb_atom_t name, xcb_atom_t type,
                     const std::vector<std::uint32_t>& values) const;
    [[nodiscard]] std::vector<std::uint32_t> property(xcb_window_t window, xcb_atom_t name) const;
    void finish() const;

    std::unique_ptr<X11Connection> _connection;
    xcb_atom_t _desktop;
    xcb_atom_t _currentDesktop;
    xcb_atom_t _activeWindow;
    xcb_atom_t _state;
    xcb_atom_t _skipTaskbar;
    xcb_atom_t _skipPager;
    xcb_atom_t _managerState;
    xcb_atom_t _managerCheck;
    xcb_atom_t _compositor;
};

}  // namespace tonquil
