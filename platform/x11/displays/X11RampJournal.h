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
/// Both are journals, extended by single append requests, so that neither being killed between two
/// requests nor two processes writing at once can corrupt them. In 32-bit units:
///  - corrections: check, CRTC, holder, fingerprint (high, low) for each correction that was set;
///  - system ramps: check, CRTC, size, fingerprint (high, low), then the 16-bit entries two to a
///    unit; a CRTC's last one counts.
///
/// The check, over the units up to the entries, distinguishes a block from what other clients may
/// write there. The holder is the X client that set the correction, by its resource base.
class X11RampJournal {
 public:
    using Histories = std::map<xcb_randr_crtc_t, RampHistory>;
    struct Contents {
        Histories histories;
        /// There was something that we never wrote, so records of ours may be missing.
        bool areCorrectionsDamaged = false;
        bool areSystemRampsDamaged = false;
    };

    explicit X11RampJournal(const X11Connection& connection);

    /// This process's holder number in the journal.
    [[nodiscard]] std::uint32_t holder() const { return _holder; }

    /// Sends the requests; `receive` reads the replies, so that other requests can be sent in
    /// between.
    void ask();
    /// Rewrites the journals if they are damaged.
    [[nodiscard]] Contents receive();

    /// Asks whether the corrections are still there, without reading them.
    void askIfIntact();
    /// False if somebody has replaced or shortened them: they should then be read again.
    [[nodiscard]] bool isIntact();

    /// Appends without waiting: the server gets it before any later request.
    void appendCorrection(xcb_randr_crtc_t crtc, const RampHistory::Correction& correction);
    void appendSystemRamp(xcb_randr_crtc_t crtc, const HardwareRamp& ramp);
    /// Compacts the journals if they have grown long; only then waits for the server.
    void compactIfLong();

    /// Parses the contents of the properties, skipping anything invalid.
    [[nodiscard]] static Contents parse(std::span<const std::uint32_t> corrections,
                                        std::span<const std::uint32_t> systemRamps);
    /// A block as it is appended.
    [[nodiscard]] static std::vector<std::uint32_t> correctionBlock(
        xcb_randr_crtc_t crtc, const RampHistory::Correction& correction);
    [[nodiscard]] static std::vector<std::uint32_t> systemRampBlock(xcb_randr_crtc_t crtc,
                                                                    const HardwareRamp& ramp);

 private:
    [[nodiscard]] Contents receiveAnswers();
    void write(std::uint8_t mode, xcb_atom_t property, std::span<const std::uint32_t> units);
    void rewrite();

    const X11Connection& _connection;
    std::uint32_t _holder;
    xcb_get_property_cookie_t _correctionsCookie{};
    xcb_get_property_cookie_t _systemRampsCookie{};
    xcb_get_property_cookie_t _intactCookie{};
    std::size_t _correctionUnits = 0;
    std::size_t _systemRampUnits = 0;
    std::size_t _compactCorrectionUnits = 0;
    std::size_t _compactSystemRampUnits = 0;
};

}  // namespace tonquil
