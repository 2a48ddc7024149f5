// SPDX-License-Identifier: MIT
#pragma once

#include <xcb/randr.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace tonquil {

/// The minimum traffic for re-applying ramps: requests each lit CRTC's ramp, sets it, and waits
/// once for all of them.
class BareRampLoop {
 public:
    /// Connects to an X server and saves the current ramps; exits the program on failure.
    explicit BareRampLoop(const std::string& display);

    [[nodiscard]] std::size_t displayCount() const { return _ramps.size(); }
    /// Sets every ramp once. Returns false if the server does not answer.
    [[nodiscard]] bool reapply();

 private:
    struct Disconnect {
        void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
    };
    struct Ramp {
        xcb_randr_crtc_t crtc;
        std::uint16_t size;
        /// Red, green and blue, one after the other.
        std::vector<std::uint16_t> entries;
    };

    void keepRamp(xcb_randr_crtc_t crtc);

    std::unique_ptr<xcb_connection_t, Disconnect> _connection;
    std::vector<Ramp> _ramps;
};

}  // namespace tonquil
