// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <span>

#include "model/KVGammaCurve.h"

namespace tonquil {

/// A curve that is itself a transfer table; its inherited points and mode are unused.
class KVTableGammaCurve : public KVGammaCurve {
 public:
    /// Bytes of a raw table file: 256 of red, 256 of green, 256 of blue.
    static constexpr std::size_t dataSize = GammaTable::channelCount * GammaTable::capacity;

    explicit KVTableGammaCurve(const GammaTable& table) : _array(table) {}

    /// Reads the first 768 bytes as 8-bit samples; null if there are fewer. A sample s is the level
    /// s / 256, like the i / n rule of computed tables, so no sample reaches 1.
    [[nodiscard]] static std::shared_ptr<KVTableGammaCurve> tableGammaCurveWithData(
        std::span<const std::uint8_t> data);

    /// Reads the form that `gammaCurveDictionary` writes; null if `dictionary` holds no table.
    [[nodiscard]] static std::shared_ptr<KVTableGammaCurve> tableGammaCurveWithDictionary(
        const nlohmann::json& dictionary);

    [[nodiscard]] const GammaTable& table() const { return _array; }

    /// The plain form, of the unused points, and the table under "Table": 768 entries of 16 bits,
    /// high byte first.
    [[nodiscard]] nlohmann::json gammaCurveDictionary() const override;
    void applyToScreen(CurveScreen& screen) const override;
    /// Reads the display's current table; slots that the display does not fill stay unchanged.
    void retriveFromScreen(CurveScreen& screen) override;

 private:
    GammaTable _array;
};

}  // namespace tonquil
