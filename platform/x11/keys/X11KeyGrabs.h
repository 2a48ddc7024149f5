// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "foundation/Problem.h"
#include "platform/x11/X11Connection.h"

namespace tonquil {

/// Passive grabs of keys on all root windows of an X server.
///
/// A grab applies to one exact modifier state, so a key is grabbed several times: once for each
/// state of the locks.
class X11KeyGrabs {
 public:
    /// The connection must outlive this.
    explicit X11KeyGrabs(const X11Connection& connection);

    /// Grabs a key in `state` with each of `lockStates`, and waits for the reply. If any of them is
    /// refused, none is kept.
    [[nodiscard]] Result<void> grab(xcb_keycode_t key, std::uint16_t state,
                                    std::span<const std::uint16_t> lockStates) const;
    /// Once it returns, other clients may grab the key.
    void ungrab(xcb_keycode_t key, std::uint16_t state,
                std::span<const std::uint16_t> lockStates) const;

 private:
    const X11Connection& _connection;
    std::vector<xcb_window_t> _roots;
};

}  // namespace tonquil
