// SPDX-License-Identifier: MIT
#include "platform/mutter/BlackBodyWhite.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace tonquil {

namespace {

constexpr double daylight = 6500;

/// Linear red, green and blue of a black body of luminance 1.
std::array<double, 3> blackBodyLight(double kelvin) {
    // The Planckian locus in CIE 1960 coordinates, within 8e-5 from 1000 to 15000 K: M. Krystek, An
    // algorithm to calculate correlated colour temperature, Color Research & Application 10 (1985).
    const double t = kelvin;
    const double u = (0.860117757 + 1.54118254e-4 * t + 1.28641212e-7 * t * t) /
                     (1 + 8.42420235e-4 * t + 7.08145163e-7 * t * t);
    const double v = (0.317398726 + 4.22806245e-5 * t + 4.20481691e-8 * t * t) /
                     (1 - 2.89741816e-5 * t + 1.61456053e-7 * t * t);
    // X and Z for Y = 1, from x = 3u / d and y = 2v / d with d = 2u - 8v + 4.
    const double x = 1.5 * u / v;
    const double z = (4 - u - 10 * v) / (2 * v);
    // IEC 61966-2-1.
    return {3.2406 * x - 1.5372 - 0.4986 * z, -0.9689 * x + 1.8758 + 0.0415 * z,
            0.0557 * x - 0.2040 + 1.0570 * z};
}

}  // namespace

std::array<double, 3> blackBodyWhite(double kelvin) {
    constexpr double lowest = 1000;
    constexpr double highest = 15'000;
    // What the display makes of its signal, near enough.
    constexpr double displayExponent = 2.2;
    if (std::isnan(kelvin)) {
        return {1, 1, 1};
    }
    std::array<double, 3> white = blackBodyLight(std::clamp(kelvin, lowest, highest));
    const std::array<double, 3> neutral = blackBodyLight(daylight);
    for (std::size_t c = 0; c < white.size(); ++c) {
        // The reddest black bodies are outside of what red, green and blue can show.
        white[c] = std::max(white[c] / neutral[c], 0.0);
    }
    const double brightest = *std::ranges::max_element(white);
    for (double& share : white) {
        share = std::pow(share / brightest, 1 / displayExponent);
    }
    return white;
}

}  // namespace tonquil
