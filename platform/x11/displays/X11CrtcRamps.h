// SPDX-License-Identifier: MIT
#pragma once

#include <xcb/randr.h>

#include <map>
#include <optional>
#include <vector>

#include "model/GammaTable.h"
#include "platform/ramp/HardwareRamp.h"
#include "platform/ramp/RampHistory.h"
#include "platform/x11/X11Connection.h"
#include "platform/x11/displays/X11RampJournal.h"

namespace tonquil {

/// Reads and writes the ramps of the server's CRTCs, and distinguishes what the system set from
/// what we set.
///
/// From the first correction that this object sets on a CRTC until it sets the system ramp there,
/// it *holds* the CRTC: whatever others write there meanwhile is a disturbance. On a CRTC that it
/// does not hold, a ramp that no program of ours has set is the system's.
///
/// Everything set between two calls of `finish` is sent together and waited for once. The
/// correction that starts to hold a CRTC also requests the ramp that it replaces: the server
/// replies in order, so a system ramp set since the last look is found without an extra round trip.
class X11CrtcRamps {
 public:
    explicit X11CrtcRamps(const X11Connection& connection)
        : _connection(connection), _journal(connection) {}

    /// Reads the given CRTCs at one moment, in one round trip. Those that are gone or have no ramp
    /// get size 0.
    void load(const std::vector<xcb_randr_crtc_t>& crtcs);
    [[nodiscard]] bool isLoaded(xcb_randr_crtc_t crtc) const { return _crtcs.contains(crtc); }
    /// If a CRTC has a correction or is held, sends it its system ramp; then forgets the CRTC.
    void release(xcb_randr_crtc_t crtc);
    /// Entries per channel; 0 without gamma.
    [[nodiscard]] std::uint32_t size(xcb_randr_crtc_t crtc) const;
    /// The hardware's ramp as of the last look; null if there is none.
    [[nodiscard]] const HardwareRamp* present(xcb_randr_crtc_t crtc) const;
    /// The system's ramp at that moment.
    [[nodiscard]] std::optional<HardwareRamp> uncorrected(xcb_randr_crtc_t crtc) const;

    /// Sends a correction. The CRTC must have been loaded and have a ramp.
    void setCorrection(xcb_randr_crtc_t crtc, const GammaTable& table);
    /// Sends a ramp that counts as the system's own from then on.
    void setSystemRamp(xcb_randr_crtc_t crtc, const HardwareRamp& ramp);
    /// Waits for everything sent, and returns the CRTCs that refused.
    [[nodiscard]] std::vector<xcb_randr_crtc_t> finish();

 private:
    struct CrtcRamp {
        HardwareRamp present;
        RampHistory history;
        /// The journal does not have the system ramp yet. It must before a correction is set.
        bool isSystemRampUnsaved = false;
        bool isHeld = false;
        /// The journal has the correction as this process's last.
        bool isCorrectionSaved = false;
        /// The last table that was set, and the ramp computed from it.
        std::optional<GammaTable> table;
        HardwareRamp correction;
        std::uint64_t correctionFingerprint = 0;
    };
    struct Pending {
        xcb_randr_crtc_t crtc = XCB_NONE;
        xcb_void_cookie_t set{};
        /// Requested by the first correction on a CRTC that is not held.
        std::optional<xcb_randr_get_crtc_gamma_cookie_t> replaced;
    };

    void look(xcb_randr_crtc_t crtc, HardwareRamp present, RampHistory history,
              bool areRecordsLost);
    void send(xcb_randr_crtc_t crtc, CrtcRamp& state, const HardwareRamp& ramp, bool isCorrection);
    void examineReplaced(xcb_randr_crtc_t crtc, const HardwareRamp& replaced);
    void saveAgain();
    [[nodiscard]] RampHistory::Correction correctionOf(const CrtcRamp& state) const {
        return {.fingerprint = state.correctionFingerprint, .holder = _journal.holder()};
    }

    const X11Connection& _connection;
    X11RampJournal _journal;
    std::map<xcb_randr_crtc_t, CrtcRamp> _crtcs;
    std::vector<Pending> _pending;
};

}  // namespace tonquil
