// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <variant>
#include <vector>

#include "foundation/Problem.h"
#include "model/GammaTable.h"
#include "values/PropertyValue.h"

namespace tonquil {

/// One curve; the reader decides for which displays.
struct SingleDisplaySettings {
    PropertyValue curve;
};

/// Curves by reference ID of their display: an all-screens dictionary. Null if the file has none.
struct MultiDisplaySettings {
    PropertyValue screens;
};

/// Not a property list: a transfer table, if there are at least 768 bytes.
struct RawTableSettings {
    /// From the start of the file; bytes after the table may be missing.
    std::vector<std::uint8_t> bytes;
};

/// The calibration in another program's colour file: a table for the displays' hardware.
struct CalibrationSettings {
    GammaTable table;
};

/// What a settings file holds.
using Settings = std::variant<SingleDisplaySettings, MultiDisplaySettings, RawTableSettings,
                              CalibrationSettings>;

/// Detects the kind of file. A property-list dictionary whose "Format" is the number 1 is for
/// several displays, any other dictionary is one curve; ICC profiles and .cal files are
/// calibrations; anything else is a raw table.
///
/// Refuses a damaged file of a known kind, and one with curves for more than 256 displays.
[[nodiscard]] Result<Settings> readSettings(std::vector<std::uint8_t> bytes);

/// The same for a regular file. An ICC profile may have at most 32 MiB, a property list or .cal
/// file 1 MiB; a raw table may be followed by any number of bytes.
[[nodiscard]] Result<Settings> readSettingsFile(const std::filesystem::path& path);

}  // namespace tonquil
