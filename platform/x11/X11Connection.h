// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "foundation/Problem.h"
#include "platform/x11/XcbReply.h"

namespace tonquil {

/// The gamma service's own connection to an X server with RandR 1.3 or later.
///
/// It is separate from Qt's, so that it still works if only that one breaks.
class X11Connection {
 public:
    /// `display` as in DISPLAY; null takes it from the environment.
    [[nodiscard]] static Result<std::unique_ptr<X11Connection>> open(const char* display);

    [[nodiscard]] xcb_connection_t* get() const { return _connection.get(); }
    [[nodiscard]] xcb_window_t root() const { return _root; }
    /// The first event number of the RandR extension.
    [[nodiscard]] std::uint8_t randrFirstEvent() const { return _randrFirstEvent; }
    /// True if the server says that it only draws into a Wayland compositor: its gamma calls
    /// succeed and read back what was written, but change nothing. Old releases do not say so.
    [[nodiscard]] bool isXwayland() const { return _isXwayland; }
    /// True once the connection is lost; every further request is futile.
    [[nodiscard]] bool isLost() const { return xcb_connection_has_error(get()) != 0; }

    /// A property's bytes, at most `mostBytes`; empty if there is none.
    [[nodiscard]] std::vector<std::uint8_t> rootProperty(xcb_atom_t name,
                                                         std::size_t mostBytes) const;

    [[nodiscard]] xcb_atom_t edidAtom() const { return _edid; }
    [[nodiscard]] xcb_atom_t correctionsAtom() const { return _corrections; }
    [[nodiscard]] xcb_atom_t systemRampsAtom() const { return _systemRamps; }
    /// Blocks for the server's reply.
    [[nodiscard]] xcb_atom_t atom(const std::string& name) const;

 private:
    X11Connection() = default;
    [[nodiscard]] std::optional<Problem> prepare(int screenNumber);

    std::unique_ptr<xcb_connection_t, DisconnectXcb> _connection;
    xcb_window_t _root = XCB_NONE;
    std::uint8_t _randrFirstEvent = 0;
    bool _isXwayland = false;
    xcb_atom_t _edid = XCB_NONE;
    xcb_atom_t _corrections = XCB_NONE;
    xcb_atom_t _systemRamps = XCB_NONE;
};

}  // namespace tonquil
