// SPDX-License-Identifier: MIT
#include "app/panel/PlottedPoint.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

namespace tonquil {

namespace {

/// A point of the curve: its master, and its slider for each channel.
struct PointSliders {
    PanelSlider master;
    std::array<PanelSlider, 3> channels;
};
constexpr PointSliders blackSliders{
    PanelSlider::MasterBlack,
    {PanelSlider::BlackRed, PanelSlider::BlackGreen, PanelSlider::BlackBlue}};
constexpr PointSliders middleSliders{
    PanelSlider::MasterMiddle,
    {PanelSlider::MiddleRed, PanelSlider::MiddleGreen, PanelSlider::MiddleBlue}};
constexpr PointSliders whiteSliders{
    PanelSlider::MasterWhite,
    {PanelSlider::WhiteRed, PanelSlider::WhiteGreen, PanelSlider::WhiteBlue}};

bool isOf(const PointSliders& point, PanelSlider slider) {
    return slider == point.master || std::ranges::count(point.channels, slider) != 0;
}

/// The position where a base reaches a level, from 0 at its first entry to 1 at its last, linearly
/// interpolated: what the curve must give for the base to turn it into that level.
double positionInBase(std::span<const float> base, double level) {
    const auto above = std::ranges::find_if(base, [=](float entry) { return entry >= level; });
    if (above == base.begin()) {
        return 0;
    }
    if (above == base.end()) {
        return 1;
    }
    const double before = *(above - 1);
    const double share = (level - before) / (*above - before);
    return (static_cast<double>(above - base.begin() - 1) + share) /
           static_cast<double>(base.size() - 1);
}

/// One channel, flattened: its own values combined with the masters'.
struct FlatChannel {
    double black;
    double exponent;
    double white;
};

}  // namespace

// The table computation, solved for one slider. Master and channel can be swapped in a flat value,
// so only the other one of the two is needed.
std::optional<float> valueThrough(double level, PanelSlider slider, std::size_t channel,
                                  const PanelValues& values, const PlottedCurves& curves) {
    if (curves.sampleCount < 2) {
        return std::nullopt;
    }
    const auto valueOf = [&](PanelSlider each) { return static_cast<double>(values[each]); };
    const auto otherOf = [&](const PointSliders& point) {
        return valueOf(slider == point.master ? point.channels.at(channel) : point.master);
    };
    const double samples = curves.sampleCount;
    const double last = (samples - 1) / samples;
    const FlatChannel flat{
        1 - (1 - valueOf(blackSliders.master)) * (1 - valueOf(blackSliders.channels.at(channel))),
        valueOf(middleSliders.master) + valueOf(middleSliders.channels.at(channel)) - 1,
        valueOf(whiteSliders.master) * valueOf(whiteSliders.channels.at(channel))};
    const double wanted =
        values.blendingMode == KVBlendingModeBaseTable
            ? positionInBase(curves.base.channel(channel).first(curves.sampleCount), level)
            : level;
    double value = 0;
    if (isOf(blackSliders, slider)) {
        value = 1 - (1 - wanted) / (1 - otherOf(blackSliders));
    } else if (isOf(middleSliders, slider)) {
        // Beyond the curve's ends no exponent does it; the steepest or the flattest comes closest.
        const double share =
            std::clamp((wanted - flat.black) / (flat.white - flat.black), 1e-9, 1.0);
        value = std::log(share) / std::log(last / 2) - otherOf(middleSliders) + 1;
    } else {
        const double white = flat.black + (wanted - flat.black) / std::pow(last, flat.exponent);
        value = white / otherOf(whiteSliders);
    }
    return std::isfinite(value) ? std::optional(static_cast<float>(value)) : std::nullopt;
}

}  // namespace tonquil
