// SPDX-License-Identifier: MIT
#include "colourfiles/ProfileHandle.h"

#include <algorithm>
#include <limits>

namespace tonquil {

ProfileHandle openProfile(std::span<const std::uint8_t> bytes) {
    if (bytes.size() > std::numeric_limits<cmsUInt32Number>::max()) {
        return nullptr;
    }
    return ProfileHandle(
        cmsOpenProfileFromMem(bytes.data(), static_cast<cmsUInt32Number>(bytes.size())));
}

bool writeCalibration(const ProfileHandle& profile,
                      const std::array<std::span<const std::uint16_t>, 3>& entries) {
    std::array<ToneCurveHandle, 3> owned;
    std::array<cmsToneCurve*, 3> curves{};
    for (std::size_t c = 0; c < curves.size(); ++c) {
        owned.at(c).reset(cmsBuildTabulatedToneCurve16(
            nullptr, static_cast<cmsUInt32Number>(entries.at(c).size()), entries.at(c).data()));
        curves.at(c) = owned.at(c).get();
    }
    // Little CMS takes the tag as a pointer to three curves.
    return std::ranges::all_of(curves, [](const auto* curve) { return curve != nullptr; }) &&
           cmsWriteTag(profile.get(), cmsSigVcgtTag, static_cast<const void*>(curves.data())) != 0;
}

std::optional<std::vector<std::uint8_t>> profileBytes(const ProfileHandle& profile) {
    cmsUInt32Number size = 0;
    if (cmsSaveProfileToMem(profile.get(), nullptr, &size) == 0) {
        return std::nullopt;
    }
    std::vector<std::uint8_t> bytes(size);
    if (cmsSaveProfileToMem(profile.get(), bytes.data(), &size) == 0) {
        return std::nullopt;
    }
    return bytes;
}

}  // namespace tonquil
