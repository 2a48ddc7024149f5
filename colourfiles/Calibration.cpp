// SPDX-License-Identifier: MIT
#include "colourfiles/Calibration.h"

#include <algorithm>
#include <cmath>

namespace tonquil {

namespace {

constexpr double fullEntry = 65535;

}  // namespace

double CalibrationChannel::level(double input) const {
    if (samples.empty()) {
        return minimum + (maximum - minimum) * std::pow(input, exponent);
    }
    const double position = input * static_cast<double>(samples.size() - 1);
    const auto lower = std::min(static_cast<std::size_t>(position), samples.size() - 1);
    const auto upper = std::min(lower + 1, samples.size() - 1);
    const double fraction = position - static_cast<double>(lower);
    return samples[lower] + fraction * (samples[upper] - samples[lower]);
}

std::uint16_t entryOf(double level) {
    const double held = level > 0 ? std::fmin(level, 1) : 0;
    return static_cast<std::uint16_t>(std::lround(held * fullEntry));
}

GammaTable tableOf(const Calibration& calibration) {
    GammaTable table;
    for (std::size_t c = 0; c < calibration.size(); ++c) {
        for (std::size_t i = 0; i < GammaTable::capacity; ++i) {
            const double input = static_cast<double>(i) / (GammaTable::capacity - 1);
            table.channel(c)[i] =
                static_cast<float>(entryOf(calibration.at(c).level(input)) / fullEntry);
        }
    }
    return table;
}

Calibration calibrationOf(const GammaTable& table, std::uint32_t sampleCount) {
    Calibration calibration;
    for (std::size_t c = 0; c < calibration.size(); ++c) {
        const auto levels = table.channel(c).first(std::min(sampleCount, GammaTable::capacity));
        calibration.at(c).samples.assign(levels.begin(), levels.end());
    }
    return calibration;
}

}  // namespace tonquil
