// SPDX-License-Identifier: MIT
//
// Feeds any text as a compact array, as from the command line or the network.

#include <string_view>

#include "Require.h"
#include "model/TQExtendedGammaCurve.h"
#include "values/BoundedJson.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tonquil;
    const auto value = readBoundedJson({reinterpret_cast<const char*>(data), size});  // NOLINT
    if (!value) {
        return 0;
    }
    const auto curve = TQExtendedGammaCurve::gammaCurveWithCompactArray(*value);
    if (curve) {
        require(curve->blendingMode() == 0 || curve->blendingMode() == 1);
        require(curve->gammaCurveCompactArray().size() == 13);
        GammaTable table;
        table.levels.fill(0.5F);
        curve->flatGammaCurve()->_applyGammaValues(table, 256);
    }
    return 0;
}
