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

/// Session events that the X server tells.
///
/// | event | from |
/// |---|---|
/// | ApplicationTerminated | a window missing from the window manager's list of windows |
/// | ColourSpaceChanged | the root window's _ICC_PROFILE and _ICC_PROFILE_<n> |
/// | ScreenSaverStopped | the server's own screen saver |
///
/// Several of the first two within 200 ms are told once.
class X11DesktopEvents final : public SessionEvents {
 public:
    /// How long several events of one kind are told as one.
    static constexpr std::chrono::milliseconds coalescingTime{200};

    /// Connects to `display` as X11Connection::open does. Once started, it calls `connectionLost`
    /// when the server has gone, which is the moment to save what is unsaved: the window toolkit
    /// ends the program when it notices.
    [[nodiscard]] static Result<std::unique_ptr<X11DesktopEvents>> open(
        const char* display, RunLoop& runLoop, Log log, std::function<void()> connectionLost = {});

    void start(Handler handler) override;
    /// Called, once started, when the blending of translucent windows is switched on or off.
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
    /// Of the root window's properties seen so far: whether it holds a display's profile.
    std::map<xcb_atom_t, bool> _isProfile;
    /// The event number, or none where the server has no screen saver.
    std::optional<int> _screenSaverEvent;
    /// The event number, or none where the server cannot tell.
    std::optional<int> _selectionEvent;
    Windows _windows;
    std::unique_ptr<RunLoop::Handle> _watch;
    std::unique_ptr<RunLoop::Handle> _early;
    std::unique_ptr<RunLoop::Handle> _terminated;
    std::unique_ptr<RunLoop::Handle> _colours;
};

}  // namespace tonquil
