// SPDX-License-Identifier: MIT
#include "tests/model/PlainFormula.h"

#include <array>
#include <cmath>

namespace tonquil {

namespace {

float held(float index, std::uint32_t n) {
    if (std::isnan(index)) {
        return 0;
    }
    return std::fmin(std::fmax(index, 0.0F), static_cast<float>(n - 1));
}

float sampled(const std::array<float, 256>& base, float v, std::uint32_t n) {
    const float lo = std::floor(v);
    const float hi = std::ceil(v);
    const float below = base[static_cast<std::size_t>(held(lo, n))];
    const float above = base[static_cast<std::size_t>(held(hi, n))];
    if (!std::isfinite(v)) {
        return below;  // There is no fraction to weigh by.
    }
    const float f = v - lo;
    return (1 - f) * above + f * below;
}

}  // namespace

void computeByPlainFormula(const CurveValues& curve, GammaTable& table, std::uint32_t sampleCount) {
    const std::uint32_t n = sampleCount;
    for (std::size_t c = 0; c < 3; ++c) {
        const auto [b, m, w] = curve.channels[c];
        const float oneMinusWhite = 1.0F - w;
        const auto r =
            static_cast<float>((1.0 - static_cast<double>(b)) - static_cast<double>(oneMinusWhite));
        std::array<float, 256> base{};
        for (std::uint32_t i = 0; i < n; ++i) {
            base[i] = table.channel(c)[i];
        }
        for (std::uint32_t i = 0; i < n; ++i) {
            const float x = static_cast<float>(i) / static_cast<float>(n);
            const double p = std::pow(static_cast<double>(x), static_cast<double>(m));
            const auto level =
                static_cast<float>(p * static_cast<double>(r) + static_cast<double>(b));
            table.channel(c)[i] = curve.blendingMode == 1
                                      ? sampled(base, level * static_cast<float>(n - 1), n)
                                      : level;
        }
    }
}

}  // namespace tonquil
