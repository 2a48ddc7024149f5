// SPDX-License-Identifier: MIT
#pragma once

#include <wayland-client-core.h>

#include <chrono>
#include <functional>
#include <memory>
#include <string_view>

#include "foundation/Problem.h"

namespace tonquil {

/// Frees what libwayland-client hands out; every object of the protocol is a proxy.
struct DestroyWaylandProxy {
    template <typename Proxy>
    void operator()(Proxy* proxy) const {
        // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): as libwayland does itself.
        wl_proxy_destroy(reinterpret_cast<wl_proxy*>(proxy));
    }
};

/// A connection of the display service's own to a Wayland compositor.
///
/// It is apart from the window toolkit's: a compositor answers a wrong gamma table by ending the
/// whole connection.
class WaylandConnection {
 public:
    /// `name` as in the environment's WAYLAND_DISPLAY; null takes it from there.
    [[nodiscard]] static Result<std::unique_ptr<WaylandConnection>> open(const char* name);

    [[nodiscard]] wl_display* get() const { return _display.get(); }
    [[nodiscard]] int descriptor() const { return wl_display_get_fd(get()); }
    /// True once the compositor has gone or has ended the connection.
    [[nodiscard]] bool isLost() const { return wl_display_get_error(get()) != 0; }

    /// Handles the events that are there, without waiting for any.
    void takeEvents();
    /// Sends what is to be sent and handles events until `isDone`, or `limit` is over, or the
    /// connection is lost; whether it is done.
    [[nodiscard]] bool waitUntil(const std::function<bool()>& isDone,
                                 std::chrono::milliseconds limit);
    /// Waits until the compositor has dealt with all that was sent; false as above.
    [[nodiscard]] bool waitForAnswers(std::chrono::milliseconds limit);
    /// Whether the compositor announces such an interface; waits for its answer.
    [[nodiscard]] bool offers(std::string_view interface, std::chrono::milliseconds limit);
    /// Sends what is to be sent. A compositor that reads nothing is waited for only for a moment.
    void flush() const;

 private:
    struct Disconnect {
        void operator()(wl_display* display) const { wl_display_disconnect(display); }
    };
    explicit WaylandConnection(wl_display* display) : _display(display) {}
    /// Handles events once; waits for some no longer than `milliseconds`.
    void takeEventsWithin(int milliseconds) const;

    std::unique_ptr<wl_display, Disconnect> _display;
};

}  // namespace tonquil
