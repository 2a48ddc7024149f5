// SPDX-License-Identifier: MIT
#include "platform/icc/CalibrationRamp.h"

#include <cmath>

#include "platform/icc/ProfileHandle.h"

namespace tonquil {

std::optional<HardwareRamp> calibrationRamp(std::span<const std::uint8_t> profile,
                                            std::uint32_t size) {
    const ProfileHandle opened = size < 2 ? nullptr : openProfile(profile);
    if (!opened) {
        return std::nullopt;
    }
    // Owned by the profile: three curves.
    const auto* curves =
        static_cast<const cmsToneCurve* const*>(cmsReadTag(opened.get(), cmsSigVcgtTag));
    if (curves == nullptr) {
        return std::nullopt;
    }
    HardwareRamp ramp(size);
    for (std::size_t c = 0; c < GammaTable::channelCount; ++c) {
        for (std::uint32_t i = 0; i < size; ++i) {
            const float input = static_cast<float>(i) / static_cast<float>(size - 1);
            const float level = cmsEvalToneCurveFloat(curves[c], input);
            const float held = level > 0.0F ? std::fmin(level, 1.0F) : 0.0F;
            ramp.channel(c)[i] = static_cast<std::uint16_t>(std::lround(held * 65535.0F));
        }
    }
    return ramp;
}

}  // namespace tonquil
