// SPDX-License-Identifier: MIT
#pragma once

#include <xcb/randr.h>
#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include "foundation/Problem.h"
#include "tests/support/Ramp.h"

namespace tonquil {

/// Frees what the X libraries allocate with malloc.
struct ReleaseReply {
    void operator()(void* reply) const noexcept { std::free(reply); }  // NOLINT
};
template <typename Reply>
using XcbReply = std::unique_ptr<Reply, ReleaseReply>;

/// The current state of one of the server's outputs.
struct OutputState {
    xcb_randr_output_t output = XCB_NONE;
    /// XCB_NONE while the output is off.
    xcb_randr_crtc_t crtc = XCB_NONE;
    std::string connector;
};

/// A connection to an X server that reads and writes hardware ramps. It queries the server in every
/// call, and shares no code with what it checks.
class RampReader {
 public:
    /// Connects to `display`, for example ":7"; fails if it does not answer or lacks RandR.
    [[nodiscard]] static Result<RampReader> connect(const std::string& display);

    /// The ramp of the active output named `connector`, for example "DUMMY1".
    [[nodiscard]] Result<Ramp> read(const std::string& connector) const;
    /// Sets the ramp as a foreign program would; the sizes must be those that `read` returned.
    [[nodiscard]] Result<void> write(const std::string& connector, const Ramp& ramp) const;

    [[nodiscard]] Result<std::vector<OutputState>> all() const;
    /// Creates or replaces the EDID property of an output.
    [[nodiscard]] Result<void> setEdid(const std::string& connector,
                                       const std::vector<std::uint8_t>& edid) const;
    /// The atom of `name`, created if it is new.
    [[nodiscard]] xcb_atom_t atom(const std::string& name) const;
    /// Turns the reply to a checked request into a result; `what` is a whole sentence.
    [[nodiscard]] Result<void> check(xcb_void_cookie_t cookie, const std::string& what) const;
    [[nodiscard]] xcb_connection_t* connection() const { return _connection.get(); }
    [[nodiscard]] xcb_window_t root() const;

 private:
    struct Disconnect {
        void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
    };
    explicit RampReader(const char* display) : _connection(xcb_connect(display, nullptr)) {}
    [[nodiscard]] Result<OutputState> find(const std::string& connector) const;

    std::unique_ptr<xcb_connection_t, Disconnect> _connection;
};

}  // namespace tonquil
