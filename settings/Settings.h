// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <variant>
#include <vector>

#include "foundation/Problem.h"
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

/// What a settings file holds.
using Settings = std::variant<SingleDisplaySettings, MultiDisplaySettings, RawTableSettings>;

/// Detects the kind of file. A property-list dictionary whose "Format" is the number 1 is for
/// several displays, any other dictionary is one curve, anything else is a raw table.
///
/// Refuses a damaged property list, and one with curves for more than 256 displays.
[[nodiscard]] Result<Settings> readSettings(std::vector<std::uint8_t> bytes);

/// The same for a regular file. A property list may have at most 1 MiB; a table may be followed by
/// any number of bytes.
[[nodiscard]] Result<Settings> readSettingsFile(const std::filesystem::path& path);

}  // namespace tonquil
