// SPDX-License-Identifier: MIT
#pragma once

#include <xcb/randr.h>

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "platform/x11/X11Connection.h"
#include "screens/DisplayIdentity.h"
#include "screens/Geometry.h"

namespace tonquil {

/// A display in RandR's current state.
struct X11Display {
    /// Assigned by the service.
    DisplayID id = 0;
    /// The output; among clones that share one CRTC the primary one, else the first.
    xcb_randr_output_t output = XCB_NONE;
    /// The CRTC that drives it and owns its ramp.
    xcb_randr_crtc_t crtc = XCB_NONE;
    std::string connector;
    std::string productName;
    std::optional<Primaries> primaries;
    DisplayIdentity identity;
    /// Y grows downward.
    Rectangle bounds;

    bool operator==(const X11Display&) const = default;
};

/// The active displays, the main one first: the primary output's or, without a primary, the one at
/// the desktop's origin. The others follow in CRTC order, which is the order in which desktops
/// number their monitors.
///
/// Never makes the server probe its connectors. Empty if the connection is lost.
[[nodiscard]] std::vector<X11Display> readX11Layout(const X11Connection& connection);

/// The CRTCs that a display of `before` has left: another display may be driven by them now.
[[nodiscard]] std::vector<xcb_randr_crtc_t> crtcsLeft(std::span<const X11Display> before,
                                                      std::span<const X11Display> now);

}  // namespace tonquil
