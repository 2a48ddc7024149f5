// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <set>
#include <vector>

#include "foundation/Log.h"
#include "foundation/Problem.h"
#include "foundation/RunLoop.h"
#include "platform/x11/X11Connection.h"
#include "platform/x11/displays/X11CrtcRamps.h"
#include "platform/x11/displays/X11Layout.h"
#include "platform/x11/displays/X11Profiles.h"
#include "platform/x11/displays/X11Reconfiguration.h"
#include "screens/DisplayService.h"
#include "screens/ReconfigurationCallbacks.h"

namespace tonquil {

/// The displays of an X server, corrected through the gamma ramps of their CRTCs.
///
/// A display's ID is its RandR output, until another monitor appears there: that one gets an ID
/// that no output has. A monitor that returns to its output gets its ID back.
class X11DisplayService : public DisplayService {
 public:
    /// Connects to the server named as in DISPLAY (null takes it from the environment). Without a
    /// run loop, which must outlive the service, changes of the displays are not watched.
    [[nodiscard]] static Result<std::unique_ptr<X11DisplayService>> open(const char* display,
                                                                         RunLoop* runLoop, Log log);
    ~X11DisplayService() override;

    [[nodiscard]] std::vector<DisplayID> onlineDisplays(std::size_t most) override;
    [[nodiscard]] DisplayID mainDisplay() override;
    [[nodiscard]] DisplayIdentity identity(DisplayID display) override;
    [[nodiscard]] DisplayDescription description(DisplayID display) override;
    [[nodiscard]] Rectangle bounds(DisplayID display) override;
    void setTransferTable(DisplayID display, const GammaTable& table) override;
    [[nodiscard]] std::uint32_t getTransferTable(DisplayID display, GammaTable& table) override;
    [[nodiscard]] std::uint32_t getHardwareTable(DisplayID display, GammaTable& table) override;
    using DisplayService::restoreSystemCalibration;
    void restoreSystemCalibration(std::span<const DisplayID> displays) override;
    [[nodiscard]] std::unique_ptr<Subscription> registerReconfigurationCallback(
        ReconfigurationCallback callback) override;
    void setWhenLost(const std::function<void()>& lost) override { _lost = lost; }
    void warpPointer(const Point& point) override;

 protected:
    void beginBatch() override;
    bool endBatch() override;

 private:
    X11DisplayService(std::unique_ptr<X11Connection> connection, RunLoop* runLoop, Log log);

    [[nodiscard]] const std::vector<X11Display>& layout();
    void readLayout();
    [[nodiscard]] DisplayID idFor(const X11Display& display);
    /// Whether the server only draws into a Wayland compositor, which takes no gamma ramp from it.
    [[nodiscard]] bool isXwayland(const X11Display& display) const;
    /// Null if there is none with this ID; 0 means the main display.
    [[nodiscard]] const X11Display* find(DisplayID display);
    /// The same, but only if it has a ramp to correct; otherwise logs the reason once. Reads a ramp
    /// that was never read.
    [[nodiscard]] const X11Display* correctable(DisplayID display);
    /// Reads the display's ramp: in a batch, all displays' at once and only once; outside of one,
    /// every time.
    void lookAtRamp(const X11Display& display);
    /// Why the display cannot be corrected; empty if it can.
    [[nodiscard]] std::string obstacle(const X11Display& display) const;
    /// The calibration in the display's profile, else its ramp without our correction. Reads both
    /// like `lookAtRamp`; nothing if there is no ramp.
    [[nodiscard]] std::optional<HardwareRamp> systemCalibration(const X11Display& display);
    void displaysChanged(const X11Reconfiguration::CrtcStates& passed);
    void report(DisplayID display, const std::string& text);

    std::unique_ptr<X11Connection> _connection;
    RunLoop* _runLoop;
    Log _log;
    X11CrtcRamps _ramps;
    X11Profiles _profiles;
    std::optional<std::vector<X11Display>> _layout;
    /// The displays last reported to the callbacks.
    std::vector<X11Display> _announced;
    std::function<void()> _lost;
    std::unique_ptr<X11Reconfiguration> _reconfiguration;
    ReconfigurationCallbacks _callbacks;
    struct KnownDisplay {
        xcb_randr_output_t output;
        DisplayIdentity identity;
        DisplayID id;
    };
    std::vector<KnownDisplay> _known;
    std::set<DisplayID> _reported;
    bool _isInBatch = false;
    bool _isLayoutOfBatch = false;
    bool _areRampsOfBatch = false;
    bool _areProfilesOfBatch = false;
    bool _allReached = true;
};

}  // namespace tonquil
