// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "model/GammaTable.h"
#include "platform/listing/DisplayListing.h"
#include "platform/mutter/MutterMonitors.h"

namespace tonquil {

/// A monitor as the rest of the program knows it.
struct MutterDisplay {
    ListedDisplay listed;
    /// The correction, if there is one.
    std::optional<GammaTable> table = {};
    /// Whether the system's calibration was put back on it, and nothing else was asked for since.
    bool isGivenBack = false;
    /// Whether the correction, or its end, is still to be sent.
    bool isUnsent = false;
};

/// The displays that there are, the main one first.
class MutterDisplays {
 public:
    /// Replaces the displays by the monitors of a layout. Those that were there before keep their
    /// corrections; returns the connectors of those that have gone.
    std::vector<std::string> replace(const MutterLayout& layout, DisplayListing& listing,
                                     const std::filesystem::path& connectors);

    [[nodiscard]] std::vector<MutterDisplay>& all() { return _all; }
    [[nodiscard]] const std::vector<MutterDisplay>& all() const { return _all; }
    [[nodiscard]] std::vector<std::string> connectors() const;
    /// Null when there is none with this ID; 0 means the main display.
    [[nodiscard]] MutterDisplay* find(DisplayID display);
    /// The correction of the display on a connector; null if there is none.
    [[nodiscard]] const GammaTable* tableOn(const std::string& connector) const;

 private:
    std::vector<MutterDisplay> _all;
};

}  // namespace tonquil
