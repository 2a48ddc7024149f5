// SPDX-License-Identifier: MIT
#include "model/StoredCurve.h"

#include "model/KVTableGammaCurve.h"
#include "model/TQExtendedGammaCurve.h"

namespace tonquil {

std::shared_ptr<KVGammaCurve> curveWithDictionary(const nlohmann::json& dictionary) {
    if (auto table = KVTableGammaCurve::tableGammaCurveWithDictionary(dictionary)) {
        return table;
    }
    return TQExtendedGammaCurve::gammaCurveWithDictionary(dictionary);
}

}  // namespace tonquil
