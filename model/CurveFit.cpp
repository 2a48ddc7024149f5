// SPDX-License-Identifier: MIT
#include "model/CurveFit.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>
#include <utility>

#include "model/CurveValues.h"

namespace tonquil {

namespace {

constexpr std::size_t slotCount = GammaTable::capacity;
using Levels = std::span<const float, slotCount>;

/// For one exponent: the straight line through the levels over input^exponent, and how far off it
/// stays.
struct Line {
    double black = 0;
    double range = 0;
    double squares = 0;
};

/// The logarithms of the inputs i / 256; that of 0 is unused.
std::array<double, slotCount> inputLogarithms() {
    std::array<double, slotCount> logarithms{};
    for (std::size_t i = 1; i < slotCount; ++i) {
        logarithms.at(i) = std::log(static_cast<double>(i) / slotCount);
    }
    return logarithms;
}

// Once the exponent is given, black and range are linear: y = black + range * x.
Line lineThrough(Levels levels, const std::array<double, slotCount>& logarithms, double exponent) {
    std::array<double, slotCount> x{};
    double sumX = 0;
    double sumY = 0;
    for (std::size_t i = 0; i < slotCount; ++i) {
        x.at(i) = i == 0 ? 0 : std::exp(exponent * logarithms.at(i));
        sumX += x.at(i);
        sumY += static_cast<double>(levels[i]);
    }
    const double meanX = sumX / slotCount;
    const double meanY = sumY / slotCount;
    double xx = 0;
    double xy = 0;
    for (std::size_t i = 0; i < slotCount; ++i) {
        xx += (x.at(i) - meanX) * (x.at(i) - meanX);
        xy += (x.at(i) - meanX) * (static_cast<double>(levels[i]) - meanY);
    }
    Line line;
    line.range = xy / xx;
    line.black = meanY - line.range * meanX;
    for (std::size_t i = 0; i < slotCount; ++i) {
        const double off = line.black + line.range * x.at(i) - static_cast<double>(levels[i]);
        line.squares += off * off;
    }
    return line;
}

/// Where a function with one valley between two points is lowest, by golden section.
template <typename Function>
double lowestBetween(double from, double to, const Function& function) {
    constexpr double golden = 0.6180339887498949;
    constexpr int rounds = 40;
    double low = to - golden * (to - from);
    double high = from + golden * (to - from);
    double atLow = function(low);
    double atHigh = function(high);
    for (int round = 0; round < rounds; ++round) {
        if (atLow < atHigh) {
            to = std::exchange(high, low);
            atHigh = atLow;
            low = to - golden * (to - from);
            atLow = function(low);
        } else {
            from = std::exchange(low, high);
            atLow = atHigh;
            high = from + golden * (to - from);
            atHigh = function(high);
        }
    }
    return (from + to) / 2;
}

// The exponent with the least squares. A coarse scan comes first, because there may be more than
// one valley.
ChannelCurve fitChannel(Levels levels, const std::array<double, slotCount>& logarithms) {
    const auto [lowest, highest] = std::ranges::minmax(levels);
    if (lowest == highest) {
        return {.black = lowest, .middle = 1, .white = lowest};
    }
    const auto squares = [&](double logarithm) {
        return lineThrough(levels, logarithms, std::exp2(logarithm)).squares;
    };
    constexpr double widest = 5;  // 2^5 is 32.
    constexpr double step = 0.25;
    constexpr int rows = static_cast<int>(2 * widest / step);
    double best = 0;
    double least = squares(best);
    for (int row = 0; row <= rows; ++row) {
        const double at = -widest + row * step;
        if (const double here = squares(at); here < least) {
            best = at;
            least = here;
        }
    }
    const double exponent = std::exp2(
        lowestBetween(std::max(best - step, -widest), std::min(best + step, widest), squares));
    const Line line = lineThrough(levels, logarithms, exponent);
    return {.black = static_cast<float>(line.black),
            .middle = static_cast<float>(exponent),
            .white = static_cast<float>(line.black + line.range)};
}

std::shared_ptr<TQExtendedGammaCurve> curveOf(const CurveValues& values) {
    const auto& [red, green, blue] = values.channels;
    const auto black = KVGammaPoint::gammaPointWithRed(red.black, green.black, blue.black);
    const auto middle = KVGammaPoint::gammaPointWithRed(red.middle, green.middle, blue.middle);
    const auto white = KVGammaPoint::gammaPointWithRed(red.white, green.white, blue.white);
    // Splitting divides by the master's white and by what its black leaves.
    const bool canSplit = std::max({red.white, green.white, blue.white}) > 0 &&
                          std::min({red.black, green.black, blue.black}) < 1;
    return canSplit ? TQExtendedGammaCurve::gammaCurveWithBlackPoint(black, middle, white,
                                                                     KVBlendingModeAbsolute)
                    : TQExtendedGammaCurve::gammaCurveWithMasterBlack(0, 1, 1, black, middle, white,
                                                                      KVBlendingModeAbsolute);
}

}  // namespace

CurveFit fitCurve(const GammaTable& table) {
    static const std::array<double, slotCount> logarithms = inputLogarithms();
    CurveValues values{.channels = {}, .blendingMode = KVBlendingModeAbsolute};
    for (std::size_t c = 0; c < GammaTable::channelCount; ++c) {
        values.channels.at(c) = fitChannel(table.channel(c), logarithms);
    }
    CurveFit fit{.curve = curveOf(values)};
    GammaTable computed;
    fit.curve->flatGammaCurve()->_applyGammaValues(computed, GammaTable::capacity);
    for (std::size_t i = 0; i < table.levels.size(); ++i) {
        const float off = std::clamp(computed.levels.at(i), 0.0F, 1.0F) - table.levels.at(i);
        fit.largestDifference = std::max(fit.largestDifference, std::abs(off));
    }
    return fit;
}

}  // namespace tonquil
