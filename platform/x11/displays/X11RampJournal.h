// SPDX-License-Identifier: MIT
#pragma once

#include <xcb/randr.h>

#include <cstdint>
#include <map>
#include <span>
#include <vector>

#include "platform/ramp/RampHistory.h"
#include "platform/x11/X11Connection.h"

namespace tonquil {

/// The histories of the server's ramps, kept in two properties of its root window: they live
/// exactly as long as the ramps themselves, and every process of ours can read them.
///
/// Both are journals to which single requests append, so that neither a kill between two requests
/// nor two processes writing at once can tear them:
///  - corrections: CRTC, digest (high, low) for each correction that was set;
///  - system ramps: CRTC, size, then the 16-bit entries two to a unit; the last of a CRTC counts.
class X11RampJournal {
 public:
    using Histories = std::map<xcb_randr_crtc_t, RampHistory>;

    explicit X11RampJournal(const X11Connection& connection) : _connection(connection) {}

    /// Sends the questions; `receive` takes the answers, so that others can be asked in between.
    void ask();
    [[nodiscard]] Histories receive();

    /// Appends without waiting: it reaches the server before whatever is sent next.
    void appendCorrection(xcb_randr_crtc_t crtc, std::uint64_t fingerprint);
    void appendSystemRamp(xcb_randr_crtc_t crtc, const HardwareRamp& ramp);
    /// Shortens the journals when they have grown long; waits for the server if so.
    void compactIfLong();

    /// Reads what the properties hold; a block that makes no sense ends a journal.
    [[nodiscard]] static Histories parse(std::span<const std::uint32_t> corrections,
                                         std::span<const std::uint32_t> systemRamps);

 private:
    void append(xcb_atom_t property, std::span<const std::uint32_t> units);
    void replace(xcb_atom_t property, std::span<const std::uint32_t> units);

    const X11Connection& _connection;
    xcb_get_property_cookie_t _correctionsCookie{};
    xcb_get_property_cookie_t _systemRampsCookie{};
    std::size_t _correctionUnits = 0;
    std::size_t _systemRampUnits = 0;
    std::size_t _compactCorrectionUnits = 0;
    std::size_t _compactSystemRampUnits = 0;
};

}  // namespace tonquil
