// SPDX-License-Identifier: MIT
#include "cli/Commands.h"
#include "cli/CurveSource.h"
#include "cli/TableText.h"
#include "model/CurveFit.h"
#include "model/KVTableGammaCurve.h"
#include "model/TQExtendedGammaCurve.h"

namespace tonquil {

Result<void> runFit(const Arguments& arguments, const CommandEnvironment& environment) {
    const auto curve = readOneCurve(arguments);
    if (!curve) {
        return tl::unexpected(curve.error());
    }
    // A file that holds a curve needs no fit.
    CurveFit fit{.curve = std::dynamic_pointer_cast<TQExtendedGammaCurve>(*curve)};
    if (const auto table = std::dynamic_pointer_cast<KVTableGammaCurve>(*curve)) {
        fit = fitCurve(table->table());
    }
    environment.out += fit.curve->gammaCurveCompactArray().dump() + "\n" +
                       "largest difference: " + levelText(fit.largestDifference) + "\n";
    return {};
}

}  // namespace tonquil
