// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "model/KVGammaCurve.h"

namespace tonquil {

/// The panel's sliders. Each holds one value of the current curve, unscaled.
enum class PanelSlider : std::uint8_t {
    MasterBlack,
    MasterMiddle,
    MasterWhite,
    BlackRed,
    BlackGreen,
    BlackBlue,
    MiddleRed,
    MiddleGreen,
    MiddleBlue,
    WhiteRed,
    WhiteGreen,
    WhiteBlue,
};
inline constexpr std::size_t panelSliderCount = 12;

/// The values of the panel's controls.
struct PanelValues {
    /// Indexed by `PanelSlider`; initially the neutral curve.
    std::array<float, panelSliderCount> sliders{0, 1, 1, 0, 0, 0, 1, 1, 1, 1, 1, 1};
    std::int32_t blendingMode = KVBlendingModeBaseTable;

    [[nodiscard]] float& operator[](PanelSlider slider) {
        return sliders.at(static_cast<std::size_t>(slider));
    }
    [[nodiscard]] float operator[](PanelSlider slider) const {
        return sliders.at(static_cast<std::size_t>(slider));
    }
    bool operator==(const PanelValues&) const = default;
};

}  // namespace tonquil
