// SPDX-License-Identifier: MIT
#include "platform/x11/desktop/X11DesktopEvents.h"

#include <xcb/screensaver.h>
#include <xcb/xfixes.h>

#include <algorithm>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

#include "platform/x11/desktop/X11WindowSystem.h"

namespace tonquil {

using std::chrono::milliseconds;

Result<std::unique_ptr<X11DesktopEvents>> X11DesktopEvents::open(
    const char* display, RunLoop& runLoop, Log log, std::function<void()> connectionLost) {
    auto connection = X11Connection::open(display);
    if (!connection) {
        return tl::unexpected(connection.error());
    }
    return std::unique_ptr<X11DesktopEvents>(new X11DesktopEvents(
        std::move(*connection), runLoop, std::move(log), std::move(connectionLost)));
}

X11DesktopEvents::X11DesktopEvents(std::unique_ptr<X11Connection> connection, RunLoop& runLoop,
                                   Log log, std::function<void()> connectionLost)
    : _connection(std::move(connection)),
      _runLoop(runLoop),
      _log(std::move(log)),
      _connectionLost(std::move(connectionLost)),
      _clientList(_connection->atom("_NET_CLIENT_LIST")) {}

void X11DesktopEvents::start(Handler handler) {
    _handler = std::move(handler);
    const std::uint32_t mask = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_change_window_attributes(_connection->get(), _connection->root(), XCB_CW_EVENT_MASK, &mask);
    watchScreenSaver();
    watchCompositor();
    _windows = windows();
    _watch = _runLoop.watchReadable(xcb_get_file_descriptor(_connection->get()),
                                    [this] { takeEvents(); });
    // Events that arrived with the replies are in memory, so the file descriptor does not show
    // them.
    _early = _runLoop.callOnce(milliseconds(0), [this] { takeEvents(); });
}

void X11DesktopEvents::watchScreenSaver() {
    const auto* extension = xcb_get_extension_data(_connection->get(), &xcb_screensaver_id);
    if (extension == nullptr || extension->present == 0) {
        report("The X server has no screen saver extension, so its screen saver is not noticed.");
        return;
    }
    _screenSaverEvent = extension->first_event + XCB_SCREENSAVER_NOTIFY;
    xcb_screensaver_select_input(_connection->get(), _connection->root(),
                                 XCB_SCREENSAVER_EVENT_NOTIFY_MASK);
}

void X11DesktopEvents::watchCompositor() {
    auto* const connection = _connection->get();
    const auto* extension = xcb_get_extension_data(connection, &xcb_xfixes_id);
    if (extension == nullptr || extension->present == 0) {
        return;
    }
    // The server accepts no other request of this extension before it knows our version.
    const XcbPointer<xcb_xfixes_query_version_reply_t> version(xcb_xfixes_query_version_reply(
        connection,
        xcb_xfixes_query_version(connection, XCB_XFIXES_MAJOR_VERSION, XCB_XFIXES_MINOR_VERSION),
        nullptr));
    if (!version) {
        return;
    }
    _selectionEvent = extension->first_event + XCB_XFIXES_SELECTION_NOTIFY;
    // A compositor gives the selection up, destroys its window, or dies.
    xcb_xfixes_select_selection_input(connection, _connection->root(),
                                      compositorSelection(*_connection),
                                      XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER |
                                          XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY |
                                          XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE);
    // It may have changed since the first query.
    if (_compositingChanged) {
        _compositingChanged();
    }
}

void X11DesktopEvents::takeEvents() {
    while (const XcbPointer<xcb_generic_event_t> event{xcb_poll_for_event(_connection->get())}) {
        take(*event);
    }
    if (_connection->isLost() && _watch) {
        _watch.reset();
        _early.reset();
        _terminated.reset();
        _colours.reset();
        report("The X server has gone; its desktop is no longer watched.");
        if (_connectionLost) {
            _connectionLost();
        }
    }
}

void X11DesktopEvents::take(const xcb_generic_event_t& event) {
    // Bit 7 means that another client sent the event.
    const int type = event.response_type & 0x7F;
    if (type == XCB_PROPERTY_NOTIFY) {
        xcb_property_notify_event_t change{};
        std::memcpy(&change, &event, sizeof change);
        takeProperty(change.atom);
    } else if (type == _screenSaverEvent) {
        xcb_screensaver_notify_event_t change{};
        std::memcpy(&change, &event, sizeof change);
        if (change.state == XCB_SCREENSAVER_STATE_OFF) {
            _handler(SessionEvent::ScreenSaverStopped);
        }
    } else if (type == _selectionEvent && _compositingChanged) {
        _compositingChanged();
    }
}

void X11DesktopEvents::takeProperty(xcb_atom_t property) {
    if (property == _clientList && !_terminated) {
        _terminated = _runLoop.callOnce(coalescingTime, [this] { windowsChanged(); });
    } else if (isProfile(property) && !_colours) {
        _colours = _runLoop.callOnce(coalescingTime, [this] {
            _colours.reset();
            _handler(SessionEvent::ColourSpaceChanged);
        });
    }
}

void X11DesktopEvents::windowsChanged() {
    _terminated.reset();
    const Windows former = std::exchange(_windows, windows());
    if (!std::includes(_windows.begin(), _windows.end(), former.begin(), former.end())) {
        _handler(SessionEvent::ApplicationTerminated);
    }
    takeEvents();
}

X11DesktopEvents::Windows X11DesktopEvents::windows() const {
    constexpr std::size_t mostBytes = std::size_t{64} * 1024;
    const auto bytes = _connection->rootProperty(_clientList, mostBytes);
    std::vector<xcb_window_t> list(bytes.size() / sizeof(xcb_window_t));
    if (!list.empty()) {
        std::memcpy(list.data(), bytes.data(), list.size() * sizeof(xcb_window_t));
    }
    return {list.begin(), list.end()};
}

bool X11DesktopEvents::isProfile(xcb_atom_t property) {
    const auto [known, isNew] = _isProfile.try_emplace(property, false);
    if (isNew) {
        const XcbPointer<xcb_get_atom_name_reply_t> reply(xcb_get_atom_name_reply(
            _connection->get(), xcb_get_atom_name(_connection->get(), property), nullptr));
        if (reply) {
            const std::string name(
                xcb_get_atom_name_name(reply.get()),
                static_cast<std::size_t>(xcb_get_atom_name_name_length(reply.get())));
            // The first display's name, or one with a number; not the property for the convention's
            // version.
            known->second = name == "_ICC_PROFILE" ||
                            (name.starts_with("_ICC_PROFILE_") &&
                             name.find_first_not_of("0123456789", 13) == std::string::npos);
        }
    }
    return known->second;
}

void X11DesktopEvents::report(std::string_view line) const {
    if (_log) {
        _log(line);
    }
}

}  // namespace tonquil
