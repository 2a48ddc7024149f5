// SPDX-License-Identifier: MIT
#pragma once

#include "screens/DisplayService.h"
#include "screens/ReconfigurationCallbacks.h"

namespace tonquil {

/// Used where the desktop allows nobody to correct its displays: lists none.
class MissingDisplayService final : public DisplayService {
 public:
    [[nodiscard]] std::vector<DisplayID> onlineDisplays(std::size_t /*most*/) override {
        return {};
    }
    [[nodiscard]] DisplayID mainDisplay() override { return 0; }
    [[nodiscard]] DisplayIdentity identity(DisplayID /*display*/) override { return {}; }
    [[nodiscard]] DisplayDescription description(DisplayID /*display*/) override { return {}; }
    [[nodiscard]] Rectangle bounds(DisplayID /*display*/) override { return {}; }
    void setTransferTable(DisplayID /*display*/, const GammaTable& /*table*/) override {}
    [[nodiscard]] std::uint32_t getTransferTable(DisplayID /*display*/,
                                                 GammaTable& /*table*/) override {
        return 0;
    }
    [[nodiscard]] std::uint32_t getHardwareTable(DisplayID /*display*/,
                                                 GammaTable& /*table*/) override {
        return 0;
    }
    using DisplayService::restoreSystemCalibration;
    void restoreSystemCalibration(std::span<const DisplayID> /*displays*/) override {}
    [[nodiscard]] std::unique_ptr<Subscription> registerReconfigurationCallback(
        ReconfigurationCallback callback) override {
        return _callbacks.add(std::move(callback));
    }
    [[nodiscard]] bool canBeDisturbed() const override { return false; }
    void warpPointer(const Point& /*point*/) override {}

 protected:
    void beginBatch() override {}
    /// There are no displays to reach.
    bool endBatch() override { return false; }

 private:
    ReconfigurationCallbacks _callbacks;
};

}  // namespace tonquil
