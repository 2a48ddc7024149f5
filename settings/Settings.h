// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <variant>
#include <vector>

#include "foundation/Problem.h"
#include "values/PropertyValue.h"

namespace tonquil {

/// One curve, for whatever displays the reader has in mind.
struct SingleDisplaySettings {
    PropertyValue curve;
};

/// Curves by the reference IDs of their displays: an all-screens dictionary. Null where the file
/// holds none.
struct MultiDisplaySettings {
    PropertyValue screens;
};

/// What holds no settings: a transfer table, if there are at least 768 bytes.
struct RawTableSettings {
    /// From the file's beginning; of what follows a table, not all need be here.
    std::vector<std::uint8_t> bytes;
};

/// What a settings file holds.
using Settings = std::variant<SingleDisplaySettings, MultiDisplaySettings, RawTableSettings>;

/// Tells the kinds apart. A property-list dictionary whose "Format" is the number 1 is for several
/// displays, any other dictionary is one curve, anything else is a raw table.
///
/// Refuses a property list that is damaged, and one with curves of more than 256 displays.
[[nodiscard]] Result<Settings> readSettings(std::vector<std::uint8_t> bytes);

/// The same for a regular file. A property list may have 1 MiB at most; a table may be followed by
/// any number of bytes.
[[nodiscard]] Result<Settings> readSettingsFile(const std::filesystem::path& path);

}  // namespace tonquil
