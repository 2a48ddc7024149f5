// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string_view>
#include <utility>

#include "app/correction/SessionEvents.h"
#include "foundation/Log.h"
#include "foundation/RunLoop.h"
#include "platform/x11/X11Connection.h"

namespace tonquil {

/// Session events reported by the X server.
///
/// | event | from |
/// |---|---|
/// | ApplicationTerminated | a window missing from the window manager's list of windows |
/// | ColourSpaceChanged | the root window's _ICC_PROFILE and _ICC_PROFILE_<n> |
/// | ScreenSaverStopped | the server's own screen saver |
///
/// Several of the first two within 200 ms are reported once.
class X11DesktopEvents final : public SessionEvents {
 public:
    /// Events of one kind within this time are reported as one.
    static constexpr std::chrono::milliseconds coalescingTime{200};

    /// Connects to `display` like X11Connection::open. Once started, calls `connectionLost` when
    /// the connection is lost, which is the moment to save unsaved work: Qt ends the program when
    /// it notices.
    [[nodiscard]] static Result<std::unique_ptr<X11DesktopEvents>> open(
        const char* display, RunLoop& runLoop, Log log, std::function<void()> connectionLost = {});

    void start(Handler handler) override;
    /// Called, once started, when compositing is switched on or off.
    void setCompositingChanged(std::function<void()> changed) {
        _compositingChanged = std::move(changed);
    }

 private:
    using Windows = std::set<xcb_window_t>;

    X11DesktopEvents(std::unique_ptr<X11Connection> connection, RunLoop& runLoop, Log log,
                     std::function<void()> connectionLost);
    void watchScreenSaver();
    void watchCompositor();
    void takeEvents();
    void take(const xcb_generic_event_t& event);
    void takeProperty(xcb_atom_t property);
    void windowsChanged();
    [[nodiscard]] Windows windows() const;
    [[nodiscard]] bool isProfile(xcb_atom_t property);
    void report(std::string_view line) const;

    std::unique_ptr<X11Connection> _connection;
    RunLoop& _runLoop;
    Log _log;
    std::function<void()> _connectionLost;
    std::function<void()> _compositingChanged;
    Handler _handler;
    xcb_atom_t _clientList;
    /// The root window's properties seen so far, and whether each holds a display's profile.
    std::map<xcb_atom_t, bool> _isProfile;
    /// The event number; none if the server has no screen saver extension.
    std::optional<int> _screenSaverEvent;
    /// The event number; none if the server cannot report it.
    std::optional<int> _selectionEvent;
    Windows _windows;
    std::unique_ptr<RunLoop::Handle> _watch;
    std::unique_ptr<RunLoop::Handle> _early;
    std::unique_ptr<RunLoop::Handle> _terminated;
    std::unique_ptr<RunLoop::Handle> _colours;
};

}  // namespace tonquil
