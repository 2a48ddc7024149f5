// SPDX-License-Identifier: MIT
#include "platform/icc/CorrectionProfile.h"

#include <algorithm>
#include <array>

#include "platform/icc/ProfileHandle.h"

namespace tonquil {

namespace {

/// A private tag: the standard has readers skip those that they do not know.
constexpr auto markTag = static_cast<cmsTagSignature>(0x544E514CU);
constexpr std::array<std::uint8_t, 16> mark{'t', 'e', 'x', 't', 0,   0,   0,   0,
                                            'T', 'o', 'n', 'q', 'u', 'i', 'l', 0};

struct FreeCurve {
    void operator()(cmsToneCurve* curve) const { cmsFreeToneCurve(curve); }
};

bool setCalibration(cmsHPROFILE profile, const HardwareRamp& ramp) {
    std::array<std::unique_ptr<cmsToneCurve, FreeCurve>, GammaTable::channelCount> curves;
    std::array<cmsToneCurve*, GammaTable::channelCount> pointers{};
    for (std::size_t c = 0; c < curves.size(); ++c) {
        const auto entries = ramp.channel(c);
        curves[c].reset(cmsBuildTabulatedToneCurve16(
            nullptr, static_cast<cmsUInt32Number>(entries.size()), entries.data()));
        pointers[c] = curves[c].get();
    }
    // Little CMS takes the tag as a pointer to three curves.
    return std::ranges::all_of(pointers, [](auto* curve) { return curve != nullptr; }) &&
           cmsWriteTag(profile, cmsSigVcgtTag, static_cast<const void*>(pointers.data())) != 0;
}

std::optional<std::vector<std::uint8_t>> bytesOf(cmsHPROFILE profile) {
    cmsUInt32Number size = 0;
    if (cmsSaveProfileToMem(profile, nullptr, &size) == 0) {
        return std::nullopt;
    }
    std::vector<std::uint8_t> bytes(size);
    if (cmsSaveProfileToMem(profile, bytes.data(), &size) == 0) {
        return std::nullopt;
    }
    return bytes;
}

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
    if (!setCalibration(opened.get(), ramp) ||
        cmsWriteRawTag(opened.get(), markTag, mark.data(), mark.size()) == 0) {
        return std::nullopt;
    }
    return bytesOf(opened.get());
}

bool isCorrectionProfile(std::span<const std::uint8_t> profile) {
    const ProfileHandle opened = openProfile(profile);
    return opened && cmsIsTag(opened.get(), markTag) != 0;
}

}  // namespace tonquil
