// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <nlohmann/json_fwd.hpp>
#include <string_view>

namespace tonquil {

/// A red, a green and a blue value of a curve: levels for its black and white points, exponents for
/// its middle point. Any number is stored as given.
///
/// Points are shared: a curve returns the point object it holds, so a setter changes every curve
/// that holds that point.
class KVGammaPoint {
 public:
    KVGammaPoint() = default;
    KVGammaPoint(float red, float green, float blue) : _red(red), _green(green), _blue(blue) {}

    [[nodiscard]] static std::shared_ptr<KVGammaPoint> gammaPointWithRed(float red, float green,
                                                                         float blue);
    /// Reads a point dictionary; null unless "Red", "Green" and "Blue" all have a float value.
    [[nodiscard]] static std::shared_ptr<KVGammaPoint> gammaPointWithDictionary(
        const nlohmann::json& dictionary);
    /// Reads the point dictionary under `key` of a curve dictionary; null if there is none.
    [[nodiscard]] static std::shared_ptr<KVGammaPoint> gammaPointEntry(
        const nlohmann::json& curveDictionary, std::string_view key);

    [[nodiscard]] float redValue() const { return _red; }
    [[nodiscard]] float greenValue() const { return _green; }
    [[nodiscard]] float blueValue() const { return _blue; }
    void setRedValue(float red) { _red = red; }
    void setGreenValue(float green) { _green = green; }
    void setBlueValue(float blue) { _blue = blue; }

    [[nodiscard]] nlohmann::json gammaPointDictionary() const;

 private:
    float _red = 0;
    float _green = 0;
    float _blue = 0;
};

}  // namespace tonquil
