// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "platform/ramp/HardwareRamp.h"
#include "platform/x11/X11Connection.h"

namespace tonquil {

/// The calibrations that the desktop publishes: the `vcgt` tags of the colour profiles in root
/// window properties.
///
/// Desktops publish the main monitor's profile under the plain name and the others' with their
/// number, in the order of readX11Layout.
class X11Profiles {
 public:
    explicit X11Profiles(const X11Connection& connection) : _connection(connection) {}

    /// Reads the profiles of the first `count` displays again, in one round trip if there are none
    /// and two if there are some.
    void load(std::size_t count);
    /// The calibration for a ramp of `size` entries; nothing without a profile that has one.
    [[nodiscard]] std::optional<HardwareRamp> calibration(std::size_t index,
                                                          std::uint32_t size) const;

 private:
    void findAtoms(std::size_t count);

    const X11Connection& _connection;
    /// The atoms of the property names, as far as they have ever been used by anyone.
    std::vector<xcb_atom_t> _atoms;
    std::vector<std::vector<std::uint8_t>> _profiles;
};

}  // namespace tonquil
