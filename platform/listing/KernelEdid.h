// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

#include "platform/edid/Edid.h"

namespace tonquil {

/// Where the kernel lists its graphics cards and their connectors.
inline constexpr std::string_view kernelConnectors = "/sys/class/drm";

/// The EDID that the kernel has read from the monitor on a connector, such as "DP-1", in a folder
/// like `kernelConnectors`. Nothing where the connector is unknown or no monitor answers there.
[[nodiscard]] std::optional<Edid> readKernelEdid(const std::filesystem::path& connectors,
                                                 std::string_view connector);

}  // namespace tonquil
