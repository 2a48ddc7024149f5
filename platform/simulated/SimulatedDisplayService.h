// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <set>
#include <string>

#include "foundation/Log.h"
#include "platform/simulated/SimulatedDesk.h"
#include "screens/DisplayService.h"

namespace tonquil {

/// The display service of a simulated desk: the same rules as on real hardware, in memory. Used by
/// tests, and for demonstrations on machines without a desktop.
class SimulatedDisplayService : public DisplayService {
 public:
    /// The desk must outlive the service.
    explicit SimulatedDisplayService(SimulatedDesk& desk, Log log = {})
        : _desk(desk), _holder(desk.newHolder()), _log(std::move(log)) {}

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
    void warpPointer(const Point& point) override { _desk.pointer = point; }

 protected:
    void beginBatch() override { _allReached = true; }
    bool endBatch() override { return _allReached; }

 private:
    /// The display if it is attached and has a ramp; otherwise logs that once and returns null.
    [[nodiscard]] SimulatedDisplay* correctable(DisplayID display);
    /// Whether this service holds a correction on the display. A display plugged in meanwhile has
    /// no record of it.
    [[nodiscard]] bool holds(DisplayID display);
    [[nodiscard]] HardwareRamp systemCalibration(const SimulatedDisplay& display);

    SimulatedDesk& _desk;
    std::uint32_t _holder;
    Log _log;
    /// By display, the last correction that was set and not taken back.
    std::map<DisplayID, std::uint64_t> _held;
    std::set<DisplayID> _reported;
    bool _allReached = true;
};

}  // namespace tonquil
