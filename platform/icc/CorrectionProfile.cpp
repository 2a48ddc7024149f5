// SPDX-License-Identifier: MIT
#include "platform/icc/CorrectionProfile.h"

#include <array>

#include "colourfiles/ProfileHandle.h"

namespace tonquil {

namespace {

/// A private tag: the standard has readers skip those that they do not know.
constexpr auto markTag = static_cast<cmsTagSignature>(0x544E514CU);
constexpr std::array<std::uint8_t, 16> mark{'t', 'e', 'x', 't', 0,   0,   0,   0,
                                            'T', 'o', 'n', 'q', 'u', 'i', 'l', 0};

}  // namespace

std::optional<std::vector<std::uint8_t>> correctionProfile(std::span<const std::uint8_t> profile,
                                                           const HardwareRamp& ramp) {
    const ProfileHandle opened = openProfile(profile);
    if (!opened || cmsGetDeviceClass(opened.get()) != cmsSigDisplayClass ||
        cmsGetColorSpace(opened.get()) != cmsSigRgbData) {
        return std::nullopt;
    }
    // The digest was that of the profile as it came; all zeros mean that there is none.
    std::array<cmsUInt8Number, 16> none{};
    cmsSetHeaderProfileID(opened.get(), none.data());
    if (!writeCalibration(opened, {ramp.channel(0), ramp.channel(1), ramp.channel(2)}) ||
        cmsWriteRawTag(opened.get(), markTag, mark.data(), mark.size()) == 0) {
        return std::nullopt;
    }
    return profileBytes(opened);
}

bool isCorrectionProfile(std::span<const std::uint8_t> profile) {
    const ProfileHandle opened = openProfile(profile);
    return opened && cmsIsTag(opened.get(), markTag) != 0;
}

}  // namespace tonquil
