// SPDX-License-Identifier: MIT
#include "platform/x11/desktop/X11WindowSystem.h"

#include <algorithm>
#include <cstring>
#include <string>
#include <utility>

namespace tonquil {

namespace {

constexpr std::uint32_t allWorkspaces = 0xFFFFFFFF;
// The source indication in messages to the window manager.
constexpr std::uint32_t fromApplication = 1;
constexpr std::uint32_t fromPerson = 2;

// The size hints of a window (ICCCM 4.1.2.3): flags first, each aspect as a width and a height.
constexpr std::size_t sizeHintCount = 18;
constexpr std::uint32_t hasAspect = 1U << 7U;
constexpr std::size_t leastAspect = 11;
constexpr std::size_t mostAspect = 13;

}  // namespace

xcb_atom_t compositorSelection(const X11Connection& connection) {
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(connection.get()));
    int number = 0;
    for (; screens.rem > 1 && screens.data->root != connection.root(); ++number) {
        xcb_screen_next(&screens);
    }
    std::string name = "_NET_WM_CM_S";
    return connection.atom(name.append(std::to_string(number)));
}

Result<std::unique_ptr<X11WindowSystem>> X11WindowSystem::open(const char* display) {
    auto connection = X11Connection::open(display);
    if (!connection) {
        return tl::unexpected(connection.error());
    }
    return std::unique_ptr<X11WindowSystem>(new X11WindowSystem(std::move(*connection)));
}

X11WindowSystem::X11WindowSystem(std::unique_ptr<X11Connection> connection)
    : _connection(std::move(connection)),
      _desktop(_connection->atom("_NET_WM_DESKTOP")),
      _currentDesktop(_connection->atom("_NET_CURRENT_DESKTOP")),
      _activeWindow(_connection->atom("_NET_ACTIVE_WINDOW")),
      _state(_connection->atom("_NET_WM_STATE")),
      _skipTaskbar(_connection->atom("_NET_WM_STATE_SKIP_TASKBAR")),
      _skipPager(_connection->atom("_NET_WM_STATE_SKIP_PAGER")),
      _managerState(_connection->atom("WM_STATE")),
      _managerCheck(_connection->atom("_NET_SUPPORTING_WM_CHECK")),
      _compositor(compositorSelection(*_connection)) {}

void X11WindowSystem::keepOnAllWorkspaces(WindowID window) {
    const auto id = static_cast<xcb_window_t>(window);
    if (isManaged(id)) {
        sendToManager(id, _desktop, {allWorkspaces, fromApplication});
    } else {
        setProperty(id, _desktop, XCB_ATOM_CARDINAL, {allWorkspaces});
    }
}

// An unmanaged window appears on the active workspace anyway.
void X11WindowSystem::bringToActiveWorkspace(WindowID window) {
    const auto id = static_cast<xcb_window_t>(window);
    const auto current = property(_connection->root(), _currentDesktop);
    if (!current.empty() && isManaged(id) && !isOnActiveWorkspace(window)) {
        sendToManager(id, _desktop, {current.front(), fromApplication});
    }
}

void X11WindowSystem::activate(WindowID window) {
    const auto id = static_cast<xcb_window_t>(window);
    if (isManaged(id)) {
        sendToManager(id, _activeWindow, {fromPerson, XCB_CURRENT_TIME});
    }
}

void X11WindowSystem::skipTaskbar(WindowID window, bool skip) {
    const auto id = static_cast<xcb_window_t>(window);
    if (isManaged(id)) {
        sendToManager(id, _state, {skip ? 1U : 0U, _skipTaskbar, _skipPager, fromApplication});
        return;
    }
    auto states = property(id, _state);
    std::erase_if(states, [this](std::uint32_t state) {
        return state == _skipTaskbar || state == _skipPager;
    });
    if (skip) {
        states.insert(states.end(), {_skipTaskbar, _skipPager});
    }
    setProperty(id, _state, XCB_ATOM_ATOM, states);
}

void X11WindowSystem::keepProportions(WindowID window, std::uint32_t width, std::uint32_t height) {
    const auto id = static_cast<xcb_window_t>(window);
    auto hints = property(id, XCB_ATOM_WM_NORMAL_HINTS);
    hints.resize(sizeHintCount);
    const auto before = hints;
    hints[0] |= hasAspect;
    hints[leastAspect] = hints[mostAspect] = width;
    hints[leastAspect + 1] = hints[mostAspect + 1] = height;
    if (hints != before) {
        setProperty(id, XCB_ATOM_WM_NORMAL_HINTS, XCB_ATOM_WM_SIZE_HINTS, hints);
    }
}

bool X11WindowSystem::isOnActiveWorkspace(WindowID window) const {
    const auto desktop = property(static_cast<xcb_window_t>(window), _desktop);
    const auto current = property(_connection->root(), _currentDesktop);
    return desktop.empty() || current.empty() || desktop.front() == allWorkspaces ||
           desktop.front() == current.front();
}

std::optional<Point> X11WindowSystem::pointerLocation() const {
    const XcbPointer<xcb_query_pointer_reply_t> reply(xcb_query_pointer_reply(
        _connection->get(), xcb_query_pointer(_connection->get(), _connection->root()), nullptr));
    if (!reply || reply->same_screen == 0) {
        return std::nullopt;
    }
    return Point{static_cast<double>(reply->root_x), static_cast<double>(reply->root_y)};
}

bool X11WindowSystem::isCompositing() const {
    const XcbPointer<xcb_get_selection_owner_reply_t> reply(xcb_get_selection_owner_reply(
        _connection->get(), xcb_get_selection_owner(_connection->get(), _compositor), nullptr));
    return reply && reply->owner != XCB_NONE;
}

bool X11WindowSystem::hasWindowManager() const {
    // A window manager that has gone may have left its name behind, but not the window with the
    // same name.
    const auto named = property(_connection->root(), _managerCheck);
    return !named.empty() && property(named.front(), _managerCheck) == named;
}

bool X11WindowSystem::isManaged(xcb_window_t window) const {
    // WM_STATE, set by the window manager. A minimised window has it too, although it is unmapped.
    constexpr std::uint32_t withdrawn = 0;
    const auto state = property(window, _managerState);
    return !state.empty() && state.front() != withdrawn;
}

void X11WindowSystem::sendToManager(xcb_window_t window, xcb_atom_t type,
                                    const std::array<std::uint32_t, 5>& data) const {
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = type;
    std::copy(data.begin(), data.end(), std::begin(message.data.data32));
    std::array<char, sizeof message> bytes{};
    std::memcpy(bytes.data(), &message, sizeof message);
    xcb_send_event(_connection->get(), 0, _connection->root(),
                   XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                   bytes.data());
    finish();
}

void X11WindowSystem::setProperty(xcb_window_t window, xcb_atom_t name, xcb_atom_t type,
                                  const std::vector<std::uint32_t>& values) const {
    xcb_change_property(_connection->get(), XCB_PROP_MODE_REPLACE, window, name, type, 32,
                        static_cast<std::uint32_t>(values.size()), values.data());
    finish();
}

std::vector<std::uint32_t> X11WindowSystem::property(xcb_window_t window, xcb_atom_t name) const {
    constexpr std::uint32_t mostValues = 256;
    const XcbPointer<xcb_get_property_reply_t> reply(
        xcb_get_property_reply(_connection->get(),
                               xcb_get_property(_connection->get(), 0, window, name,
                                                XCB_GET_PROPERTY_TYPE_ANY, 0, mostValues),
                               nullptr));
    if (!reply || reply->format != 32) {
        return {};
    }
    std::vector<std::uint32_t> values(reply->value_len);
    if (!values.empty()) {
        std::memcpy(values.data(), xcb_get_property_value(reply.get()),
                    values.size() * sizeof(std::uint32_t));
    }
    return values;
}

// Qt has a connection of its own, and its next request must not overtake this one.
void X11WindowSystem::finish() const {
    const XcbPointer<xcb_get_input_focus_reply_t> roundTrip(xcb_get_input_focus_reply(
        _connection->get(), xcb_get_input_focus(_connection->get()), nullptr));
    // Errors of earlier requests, for windows that have gone meanwhile.
    while (const XcbPointer<xcb_generic_event_t> ignored{xcb_poll_for_event(_connection->get())}) {
    }
}

}  // namespace tonquil
