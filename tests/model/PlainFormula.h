// SPDX-License-Identifier: MIT
#pragma once

#include <cmath>

#include "model/CurveValues.h"
#include "model/GammaTable.h"

namespace tonquil {

[[nodiscard]] inline float sampled(const float* base, float v, std::uint32_t n) {
    const auto at = [&](float index) {
        // fmax and fmin ignore NaN.
        return base[static_cast<std::size_t>(
            std::fmin(std::fmax(index, 0.0F), static_cast<float>(n - 1)))];
    };
    if (!std::isfinite(v)) {
        return at(v);  // There is no fraction to weight by.
    }
    const float f = v - std::floor(v);
    return (1 - f) * at(std::ceil(v)) + f * at(std::floor(v));
}

/// The table formula, slot by slot and without any shortcut.
inline void computeByPlainFormula(const CurveValues& curve, GammaTable& table, std::uint32_t n) {
    const GammaTable base = table;
    for (std::size_t c = 0; c < 3; ++c) {
        const auto [b, m, w] = curve.channels[c];
        const float oneMinusWhite = 1.0F - w;
        const auto r =
            static_cast<float>((1.0 - static_cast<double>(b)) - static_cast<double>(oneMinusWhite));
        for (std::uint32_t i = 0; i < n; ++i) {
            const float x = static_cast<float>(i) / static_cast<float>(n);
            const double p = std::pow(static_cast<double>(x), static_cast<double>(m));
            const auto level =
                static_cast<float>(p * static_cast<double>(r) + static_cast<double>(b));
            table.channel(c)[i] =
                curve.blendingMode == 1
                    ? sampled(base.channel(c).data(), level * static_cast<float>(n - 1), n)
                    : level;
        }
    }
}

}  // namespace tonquil
