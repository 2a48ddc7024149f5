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
constexpr std::string_view digits = "0123456789abcdef";

std::string textFromBytes(const std::vector<std::uint8_t>& bytes) {
    std::string text;
    for (const std::uint8_t byte : bytes) {
        text += digits[byte >> 4U];
        text += digits[byte & 0xFU];
    }
    return text;
}

/// Skips whatever is not a pair of hexadecimal digits.
std::vector<std::uint8_t> bytesFromText(const std::string& text) {
    std::vector<std::uint8_t> bytes;
    std::size_t high = std::string_view::npos;
    for (const char c : text) {
        const std::size_t digit = digits.find(c);
        if (digit == std::string_view::npos || high == std::string_view::npos) {
            high = digit;
        } else {
            bytes.push_back(static_cast<std::uint8_t>(high * digits.size() + digit));
            high = std::string_view::npos;
        }
    }
    return bytes;
}

PropertyValue valueOf(const KVGammaCurve& curve) {
    if (const auto* const extended = dynamic_cast<const TQExtendedGammaCurve*>(&curve)) {
        return extended->gammaCurveCompactArray();
    }
    const PropertyValue dictionary = curve.gammaCurveDictionary();
    return textFromBytes(dictionary.at(storedTable).get_binary());
}

/// Null if the value is no curve.
std::shared_ptr<KVGammaCurve> curveOf(const PropertyValue& value) {
    if (value.is_string()) {
        return KVTableGammaCurve::tableGammaCurveWithDictionary(
            {{storedTable, PropertyValue::binary(bytesFromText(value.get<std::string>()))}});
    }
    // JSON has no infinity: such a number arrives as null.
    const bool areNumbers =
        std::ranges::all_of(value, [](const PropertyValue& each) { return each.is_number(); });
    return areNumbers ? TQExtendedGammaCurve::gammaCurveWithCompactArray(value) : nullptr;
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
