// SPDX-License-Identifier: MIT
#pragma once

#include <xcb/randr.h>
#include <xcb/xcb.h>

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include "foundation/Problem.h"

namespace tonquil {

/// Frees what the X libraries allocate with malloc.
struct ReleaseReply {
    void operator()(void* reply) const noexcept { std::free(reply); }  // NOLINT
};
template <typename Reply>
using XcbReply = std::unique_ptr<Reply, ReleaseReply>;

/// One output of the server as it is at the moment of asking.
struct OutputState {
    xcb_randr_output_t output = XCB_NONE;
    /// XCB_NONE while the output is dark.
    xcb_randr_crtc_t crtc = XCB_NONE;
    std::string connector;
    /// In pixels; zero while the output is dark.
    std::uint16_t width = 0;
    std::uint16_t height = 0;
};

/// A connection to an X server, with its outputs by name.
class XcbOutputs {
 public:
    /// Connects to `display`, for example ":7"; fails if it does not answer or lacks RandR.
    [[nodiscard]] static Result<XcbOutputs> connect(const std::string& display);

    [[nodiscard]] Result<std::vector<OutputState>> all() const;
    /// Fails when no output has that name.
    [[nodiscard]] Result<OutputState> find(const std::string& connector) const;
    /// The atom of `name`, made when it is new.
    [[nodiscard]] Result<xcb_atom_t> atom(const std::string& name) const;
    /// Creates or replaces the EDID property of an output.
    [[nodiscard]] Result<void> setEdid(const std::string& connector,
                                       const std::vector<std::uint8_t>& edid) const;
    /// Takes the modes away that were added to an output, and leaves the driver's own.
    [[nodiscard]] Result<void> removeAddedModes(const std::string& connector) const;
    /// Turns the answer to a checked request into a result; `what` is a whole sentence.
    [[nodiscard]] Result<void> check(xcb_void_cookie_t cookie, const std::string& what) const;

    [[nodiscard]] xcb_connection_t* connection() const { return _connection.get(); }
    [[nodiscard]] xcb_window_t root() const { return _root; }

 private:
    struct Disconnect {
        void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
    };
    using Connection = std::unique_ptr<xcb_connection_t, Disconnect>;

    XcbOutputs(Connection connection, xcb_window_t root);
    [[nodiscard]] OutputState describe(xcb_randr_output_t output, xcb_timestamp_t time) const;

    Connection _connection;
    xcb_window_t _root;
};

}  // namespace tonquil
