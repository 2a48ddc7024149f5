// SPDX-License-Identifier: MIT
#pragma once

#include <xcb/randr.h>

#include <string>
#include <vector>

#include "platform/x11/X11Connection.h"
#include "screens/DisplayIdentity.h"
#include "screens/Geometry.h"

namespace tonquil {

/// A display as RandR has it now.
struct X11Display {
    /// Given by the service.
    DisplayID id = 0;
    /// The output; among clones that share one CRTC the primary one, else the first.
    xcb_randr_output_t output = XCB_NONE;
    /// What drives it, and what its ramp belongs to.
    xcb_randr_crtc_t crtc = XCB_NONE;
    std::string connector;
    std::string productName;
    DisplayIdentity identity;
    /// Top-down.
    Rectangle bounds;

    bool operator==(const X11Display&) const = default;
};

/// The lit displays, the main one first: the primary output's, or, where none is primary, the one
/// at the desktop's origin. The others follow in the order of their CRTCs, which is the order in
/// which desktops number their monitors.
///
/// Never makes the server probe its connectors. Empty when the server is gone.
[[nodiscard]] std::vector<X11Display> readX11Layout(const X11Connection& connection);

}  // namespace tonquil
