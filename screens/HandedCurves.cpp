// SPDX-License-Identifier: MIT
#include "screens/HandedCurves.h"

#include <algorithm>
#include <cstdint>
#include <utility>
#include <vector>

#include "model/KVTableGammaCurve.h"
#include "model/TQExtendedGammaCurve.h"
#include "values/BoundedJson.h"
#include "values/PropertyValue.h"

namespace tonquil {

namespace {

constexpr const char* storedTable = "Table";
/// Far more numbers than a compact form has.
constexpr std::size_t tableBytes = 2 * KVTableGammaCurve::dataSize;

PropertyValue valueOf(const KVGammaCurve& curve) {
    if (const auto* const extended = dynamic_cast<const TQExtendedGammaCurve*>(&curve)) {
        return extended->gammaCurveCompactArray();
    }
    const PropertyValue dictionary = curve.gammaCurveDictionary();
    return std::vector<std::uint8_t>(dictionary.at(storedTable).get_binary());
}

std::shared_ptr<KVGammaCurve> curveOf(const PropertyValue& value) {
    // JSON has no infinity: such a number arrives as null.
    if (!std::ranges::all_of(value, [](const PropertyValue& each) { return each.is_number(); })) {
        return nullptr;
    }
    if (value.size() != tableBytes) {
        return TQExtendedGammaCurve::gammaCurveWithCompactArray(value);
    }
    std::vector<std::uint8_t> bytes;
    for (const PropertyValue& each : value) {
        bytes.push_back(static_cast<std::uint8_t>(integerValue(each)));
    }
    return KVTableGammaCurve::tableGammaCurveWithDictionary(
        {{storedTable, PropertyValue::binary(std::move(bytes))}});
}

}  // namespace

bool areNeutral(const HandedCurves& curves) {
    const PropertyValue neutral = TQExtendedGammaCurve().gammaCurveDictionary();
    return std::ranges::all_of(
        curves, [&](const auto& each) { return each.second->gammaCurveDictionary() == neutral; });
}

std::string textFromHandedCurves(const HandedCurves& curves) {
    PropertyValue object = PropertyValue::object();
    for (const auto& [connector, curve] : curves) {
        object[connector] = valueOf(*curve);
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
    for (const auto& [connector, value] : object->items()) {
        auto curve = curveOf(value);
        if (!curve) {
            return unusable;
        }
        curves.emplace(connector, std::move(curve));
    }
    return curves;
}

}  // namespace tonquil
