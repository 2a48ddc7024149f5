// SPDX-License-Identifier: MIT
#pragma once

#include <lcms2.h>

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <vector>

namespace tonquil {

/// Frees what Little CMS hands out.
struct FreeColourObject {
    void operator()(void* profile) const { cmsCloseProfile(profile); }
    void operator()(cmsToneCurve* curve) const { cmsFreeToneCurve(curve); }
    void operator()(cmsMLU* text) const { cmsMLUfree(text); }
};
using ProfileHandle = std::unique_ptr<void, FreeColourObject>;
using ToneCurveHandle = std::unique_ptr<cmsToneCurve, FreeColourObject>;

/// Null if the bytes are no profile. They must outlive it.
[[nodiscard]] ProfileHandle openProfile(std::span<const std::uint8_t> bytes);

/// Makes these entries, of the red, the green and the blue curve, the profile's calibration
/// (`vcgt`).
[[nodiscard]] bool writeCalibration(const ProfileHandle& profile,
                                    const std::array<std::span<const std::uint16_t>, 3>& entries);

/// The profile as a file; nothing if it could not be made.
[[nodiscard]] std::optional<std::vector<std::uint8_t>> profileBytes(const ProfileHandle& profile);

}  // namespace tonquil
