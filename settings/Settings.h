// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
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

/// Bytes that are no settings dictionary: a transfer table, if there are at least 768 of them.
struct RawTableSettings {
    std::vector<std::uint8_t> bytes;
    /// Set where the bytes set out to be a property list: why they are no settings all the same.
    std::optional<Problem> failedPropertyList;
};

/// What a settings file holds.
using Settings = std::variant<SingleDisplaySettings, MultiDisplaySettings, RawTableSettings>;

/// Tells the kinds apart. A property-list dictionary whose "Format" is the number 1 is for several
/// displays, any other dictionary is one curve, anything else is a raw table.
[[nodiscard]] Settings readSettings(std::vector<std::uint8_t> bytes);

/// The same for a regular file of at most 1 MiB.
[[nodiscard]] Result<Settings> readSettingsFile(const std::filesystem::path& path);

}  // namespace tonquil
