// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

#include "foundation/Log.h"
#include "platform/listing/DisplayListing.h"
#include "screens/DisplayService.h"

namespace tonquil {

/// The displays of a Wayland desktop, all described by one list. What is on the hardware cannot be
/// read there, and the pointer cannot be moved.
class ListedDisplayService : public DisplayService {
 public:
    [[nodiscard]] std::vector<DisplayID> onlineDisplays(std::size_t most) override;
    [[nodiscard]] DisplayID mainDisplay() override;
    [[nodiscard]] DisplayIdentity identity(DisplayID display) override;
    [[nodiscard]] DisplayDescription description(DisplayID display) override;
    [[nodiscard]] Rectangle bounds(DisplayID display) override;
    /// Always 0.
    [[nodiscard]] std::uint32_t getHardwareTable(DisplayID /*display*/,
                                                 GammaTable& /*table*/) override {
        return 0;
    }
    [[nodiscard]] bool isKeptByOneProgram() const override { return true; }
    /// Does nothing.
    void warpPointer(const Point& /*point*/) override {}

 protected:
    explicit ListedDisplayService(Log log) : _listing(std::move(log)) {}

    /// The displays as of now, the main one first.
    [[nodiscard]] virtual std::vector<ListedDisplay> layout() = 0;
    /// Whether a correction stays when the program has ended.
    [[nodiscard]] virtual bool areCorrectionsLasting() const = 0;
    /// Called before the displays are listed: a program without a run loop hears of changes only
    /// now.
    virtual void catchUp() = 0;

    DisplayListing _listing;

 private:
    [[nodiscard]] std::optional<ListedDisplay> listed(DisplayID display);
};

}  // namespace tonquil
