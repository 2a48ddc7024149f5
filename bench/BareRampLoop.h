// SPDX-License-Identifier: MIT
#pragma once

#include <xcb/randr.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace tonquil {

/// The least traffic that re-applying ramps takes: it asks for each lit CRTC's ramp, sets it, and
/// waits once for all.
class BareRampLoop {
 public:
    /// Connects to an X server and keeps the present ramps; ends the program where that fails.
    explicit BareRampLoop(const std::string& display);

    [[nodiscard]] std::size_t displayCount() const { return _ramps.size(); }
    /// Sets every ramp once. False when the server does not answer.
    [[nodiscard]] bool reapply();

 private:
    struct Disconnect {
        void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
    };
    struct Ramp {
        xcb_randr_crtc_t crtc;
        std::uint16_t size;
        /// Red, green and blue, one behind the other.
        std::vector<std::uint16_t> entries;
    };

    void keepRamp(xcb_randr_crtc_t crtc);

    std::unique_ptr<xcb_connection_t, Disconnect> _connection;
    std::vector<Ramp> _ramps;
};

}  // namespace tonquil
