// SPDX-License-Identifier: MIT
#include "model/KVTableGammaCurve.h"

#include <cmath>
#include <utility>
#include <vector>

#include "model/CurveScreen.h"
#include "values/PropertyValue.h"

namespace tonquil {

namespace {

constexpr const char* tableKey = "Table";
constexpr float fullEntry = 65535;

std::uint16_t entryOf(float level) {
    // Not-a-number is dark.
    const float held = level > 0 ? std::fmin(level, 1.0F) : 0.0F;
    return static_cast<std::uint16_t>(std::lround(held * fullEntry));
}

}  // namespace

std::shared_ptr<KVTableGammaCurve> KVTableGammaCurve::tableGammaCurveWithData(
    std::span<const std::uint8_t> data) {
    if (data.size() < dataSize) {
        return nullptr;
    }
    GammaTable table;
    for (std::size_t i = 0; i < dataSize; ++i) {
        table.levels[i] = static_cast<float>(data[i]) / 256.0F;
    }
    return std::make_shared<KVTableGammaCurve>(table);
}

std::shared_ptr<KVTableGammaCurve> KVTableGammaCurve::tableGammaCurveWithDictionary(
    const PropertyValue& dictionary) {
    const PropertyValue* stored = entry(dictionary, tableKey);
    if (stored == nullptr || !stored->is_binary() || stored->get_binary().size() != 2 * dataSize) {
        return nullptr;
    }
    const std::vector<std::uint8_t>& bytes = stored->get_binary();
    GammaTable table;
    for (std::size_t i = 0; i < dataSize; ++i) {
        const auto number = static_cast<float>((bytes[2 * i] << 8U) | bytes[2 * i + 1]);
        table.levels[i] = number / fullEntry;
    }
    return std::make_shared<KVTableGammaCurve>(table);
}

// A reader that does not know the table finds a plain curve.
PropertyValue KVTableGammaCurve::gammaCurveDictionary() const {
    std::vector<std::uint8_t> bytes;
    bytes.reserve(2 * dataSize);
    for (const float level : _array.levels) {
        const std::uint16_t number = entryOf(level);
        bytes.push_back(static_cast<std::uint8_t>(number >> 8U));
        bytes.push_back(static_cast<std::uint8_t>(number & 0xFFU));
    }
    PropertyValue dictionary = KVGammaCurve::gammaCurveDictionary();
    dictionary[tableKey] = PropertyValue::binary(std::move(bytes));
    return dictionary;
}

void KVTableGammaCurve::applyToScreen(CurveScreen& screen) const {
    screen.setTransferTable(_array);
}

void KVTableGammaCurve::retriveFromScreen(CurveScreen& screen) {
    // The number of slots filled does not matter: a shorter ramp leaves the rest unchanged.
    static_cast<void>(screen.getTransferTable(_array));
}

}  // namespace tonquil
