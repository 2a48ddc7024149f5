// SPDX-License-Identifier: MIT
#pragma once

#include <lcms2.h>

#include <cstdint>
#include <limits>
#include <memory>
#include <span>

namespace tonquil {

/// Frees what Little CMS hands out.
struct CloseProfile {
    void operator()(void* profile) const { cmsCloseProfile(profile); }
};
using ProfileHandle = std::unique_ptr<void, CloseProfile>;

/// Null if the bytes are no profile. They must outlive it.
[[nodiscard]] inline ProfileHandle openProfile(std::span<const std::uint8_t> bytes) {
    if (bytes.size() > std::numeric_limits<cmsUInt32Number>::max()) {
        return nullptr;
    }
    return ProfileHandle(
        cmsOpenProfileFromMem(bytes.data(), static_cast<cmsUInt32Number>(bytes.size())));
}

}  // namespace tonquil
