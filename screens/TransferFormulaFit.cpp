// SPDX-License-Identifier: MIT
#include "screens/TransferFormulaFit.h"

#include <algorithm>
#include <cmath>

namespace tonquil {

namespace {

ChannelFormula fit(std::span<const float> levels) {
    if (levels.empty()) {
        return {};
    }
    ChannelFormula formula{.minimum = levels.front(), .maximum = levels.back(), .exponent = 1};
    const double range =
        static_cast<double>(formula.maximum) - static_cast<double>(formula.minimum);
    if (levels.size() < 3 || range == 0) {
        return formula;
    }
    // With y = (level - min) / (max - min) the law is log y = exponent * log x, a line through the
    // origin with the least-squares slope sum(log x log y) / sum(log x log x).
    double sumXY = 0;
    double sumXX = 0;
    for (std::size_t i = 1; i + 1 < levels.size(); ++i) {
        const double x = std::log(static_cast<double>(i) / static_cast<double>(levels.size() - 1));
        const double y =
            (static_cast<double>(levels[i]) - static_cast<double>(formula.minimum)) / range;
        if (y > 0) {
            sumXY += x * std::log(y);
            sumXX += x * x;
        }
    }
    if (sumXX > 0) {
        formula.exponent = static_cast<float>(sumXY / sumXX);
    }
    return formula;
}

}  // namespace

TransferFormula fitTransferFormula(const GammaTable& table, std::uint32_t sampleCount) {
    const auto channel = [&](std::size_t index) {
        const std::size_t count = std::min(sampleCount, GammaTable::capacity);
        return fit(std::span<const float>(table.channel(index)).first(count));
    };
    return {.red = channel(0), .green = channel(1), .blue = channel(2)};
}

GammaTable tableFromFormula(const TransferFormula& formula) {
    GammaTable table;
    const std::array channels{formula.red, formula.green, formula.blue};
    for (std::size_t c = 0; c < channels.size(); ++c) {
        const auto [minimum, maximum, exponent] = channels[c];
        for (std::size_t i = 0; i < GammaTable::capacity; ++i) {
            const double x = static_cast<double>(i) / (GammaTable::capacity - 1);
            table.channel(c)[i] =
                static_cast<float>(static_cast<double>(minimum) +
                                   (static_cast<double>(maximum) - static_cast<double>(minimum)) *
                                       std::pow(x, static_cast<double>(exponent)));
        }
    }
    return table;
}

}  // namespace tonquil
