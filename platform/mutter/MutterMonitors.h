// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "platform/dbus/BusArguments.h"
#include "platform/listing/ListedDisplay.h"
#include "screens/Geometry.h"

namespace tonquil {

/// A monitor as the compositor describes it.
struct MutterMonitor {
    std::string connector;
    /// Words from the EDID, or numbers such as "0x0000a0b1" where it has none.
    std::string vendor;
    std::string product;
    std::string serial;
    /// In the desktop's own, scaled, top-down space.
    Rectangle bounds;
    bool isPrimary = false;

    bool operator==(const MutterMonitor&) const = default;
};

/// The monitors that show a picture, the main one first.
struct MutterLayout {
    /// Differs after each change.
    std::uint32_t serial = 0;
    std::vector<MutterMonitor> monitors;

    bool operator==(const MutterLayout&) const = default;
};

/// Reads the answer to GetCurrentState of org.gnome.Mutter.DisplayConfig.
[[nodiscard]] MutterLayout readMutterLayout(BusArguments& state);

/// The display on the monitor's connector, identified by the EDID that the kernel has of it or else
/// by the compositor's words. Its ID is still 0.
[[nodiscard]] ListedDisplay listedDisplay(const MutterMonitor& monitor,
                                          const std::filesystem::path& connectors);

}  // namespace tonquil
