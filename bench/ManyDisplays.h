// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "model/TQExtendedGammaCurve.h"
#include "platform/simulated/SimulatedDeskReader.h"
#include "platform/simulated/SimulatedDisplayService.h"
#include "screens/ScreenRegistry.h"

namespace tonquil {

/// A typical curve; each number gives a different exponent.
[[nodiscard]] inline std::shared_ptr<TQExtendedGammaCurve> exampleCurve(int number) {
    const auto offset = static_cast<float>(number) * 0.001F;
    return TQExtendedGammaCurve::gammaCurveWithMasterBlack(
        0.05F, 1.1F + offset, 0.95F, KVGammaPoint::gammaPointWithRed(0.02F, 0.01F, 0.03F),
        KVGammaPoint::gammaPointWithRed(1.1F, 1.2F, 0.9F),
        KVGammaPoint::gammaPointWithRed(0.97F, 0.98F, 0.94F), KVBlendingModeBaseTable);
}

/// A simulated desk whose displays all have an identity and an example curve.
struct ManyDisplays {
    explicit ManyDisplays(std::uint32_t count) {
        for (std::uint32_t id = 1; id <= count; ++id) {
            desk.plug({.id = id,
                       .identity = {.serialNumber = 1000 + id,
                                    .modelNumber = 16500,
                                    .vendorNumber = 4268,
                                    .isBuiltIn = false,
                                    .widthInMillimetres = 600,
                                    .heightInMillimetres = 340},
                       .connector = "DP-" + std::to_string(id),
                       .productName = "Example",
                       .bounds = {1920.0 * (id - 1), 0, 1920, 1080},
                       .ramp = serverStartRamp(GammaTable::capacity),
                       .profileRamp = {}});
        }
        int number = 0;
        for (const auto& screen : registry.screens()) {
            screen->setGammaCurve(exampleCurve(++number));
        }
    }

    SimulatedDesk desk;
    SimulatedDisplayService service{desk};
    ScreenRegistry registry{service};
};

}  // namespace tonquil
