// SPDX-License-Identifier: MIT
#include "model/TableComputation.h"

#include <algorithm>
#include <bit>
#include <cmath>

#include "model/KVGammaCurve.h"

namespace tonquil {

namespace {

using Powers = std::array<double, GammaTable::capacity>;

/// (i / n)^exponent for every i below n. The input is rounded to single precision, the power is
/// not.
void computePowers(float exponent, std::uint32_t n, Powers& powers) {
    const auto divisor = static_cast<float>(n);
    for (std::uint32_t i = 0; i < n; ++i) {
        const double x = static_cast<float>(i) / divisor;
        // x^1 is exactly x, and most channels of most curves have this exponent.
        powers[i] = exponent == 1.0F ? x : std::pow(x, static_cast<double>(exponent));
    }
}

/// white - black, with the rounding that the formula has always had: 1 - white in single precision,
/// the rest in double.
float range(const ChannelCurve& curve) {
    return static_cast<float>((1.0 - static_cast<double>(curve.black)) -
                              static_cast<double>(1.0F - curve.white));
}

float level(const ChannelCurve& curve, float range, double power) {
    return static_cast<float>(power * static_cast<double>(range) +
                              static_cast<double>(curve.black));
}

/// The base at a position outside its range, or at NaN.
float sampleOutside(const float* base, float position, float last) {
    if (!std::isfinite(position)) {
        return base[position > 0.0F ? static_cast<std::size_t>(last) : 0];
    }
    const float low = std::floor(position);
    const float fraction = position - low;
    const auto lower = static_cast<std::size_t>(std::clamp(low, 0.0F, last));
    const auto upper = static_cast<std::size_t>(std::clamp(std::ceil(position), 0.0F, last));
    return (1.0F - fraction) * base[upper] + fraction * base[lower];
}

void sampleBase(const ChannelCurve& curve, const Powers& powers, std::uint32_t n, float* slots) {
    std::array<float, GammaTable::capacity> base;
    std::copy_n(slots, n, base.begin());
    const float r = range(curve);
    const auto last = static_cast<float>(n - 1);
    for (std::uint32_t i = 0; i < n; ++i) {
        const float position = level(curve, r, powers[i]) * last;
        if (!(position >= 0.0F && position <= last)) {
            slots[i] = sampleOutside(base.data(), position, last);
            continue;
        }
        // For non-negative values truncation is floor, without a library call.
        const auto lower = static_cast<std::uint32_t>(position);
        const float fraction = position - static_cast<float>(lower);
        const std::uint32_t upper = lower + (fraction > 0.0F ? 1 : 0);
        // The upper neighbour is weighted 1 - f and the lower f: the reverse of ordinary
        // interpolation, and what every saved curve was tuned with. At whole positions both
        // neighbours are the same.
        slots[i] = (1.0F - fraction) * base[upper] + fraction * base[lower];
    }
}

}  // namespace

void computeTransferTable(const CurveValues& curve, GammaTable& table, std::uint32_t sampleCount) {
    const std::uint32_t n = std::min(sampleCount, GammaTable::capacity);
    if (n == 0) {
        return;
    }
    Powers powers;
    for (std::size_t c = 0; c < GammaTable::channelCount; ++c) {
        const ChannelCurve& channel = curve.channels[c];
        // Powers are most of the work, and channels often share their exponent.
        const bool isSameExponent =
            c > 0 && std::bit_cast<std::uint32_t>(channel.middle) ==
                         std::bit_cast<std::uint32_t>(curve.channels[c - 1].middle);
        if (!isSameExponent) {
            computePowers(channel.middle, n, powers);
        }
        float* slots = table.channel(c).data();
        if (curve.blendingMode == KVBlendingModeBaseTable) {
            sampleBase(channel, powers, n, slots);
            continue;
        }
        const float r = range(channel);
        for (std::uint32_t i = 0; i < n; ++i) {
            slots[i] = level(channel, r, powers[i]);
        }
    }
}

}  // namespace tonquil
