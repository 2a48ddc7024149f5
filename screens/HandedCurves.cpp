// SPDX-License-Identifier: MIT
#include "screens/HandedCurves.h"

#include <algorithm>
#include <utility>

#include "values/BoundedJson.h"
#include "values/PropertyValue.h"

namespace tonquil {

std::string textFromHandedCurves(const HandedCurves& curves) {
    PropertyValue object = PropertyValue::object();
    for (const auto& [connector, curve] : curves) {
        object[connector] = curve->gammaCurveCompactArray();
    }
    return object.dump(-1, ' ', false, PropertyValue::error_handler_t::replace);
}

Result<HandedCurves> handedCurvesFromText(std::string_view text) {
    const auto unusable = problem("The curves that were handed over cannot be read.");
    const auto object = readBoundedJson(text);
    if (!object || !object->is_object()) {
        return unusable;
    }
    HandedCurves curves;
    for (const auto& [connector, array] : object->items()) {
        // JSON has no infinity: such a number arrives as null.
        const bool areNumbers = std::ranges::all_of(
            array, [](const PropertyValue& value) { return value.is_number(); });
        auto curve = TQExtendedGammaCurve::gammaCurveWithCompactArray(array);
        if (!areNumbers || !curve) {
            return unusable;
        }
        curves.emplace(connector, std::move(curve));
    }
    return curves;
}

}  // namespace tonquil
