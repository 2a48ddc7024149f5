// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

#include "foundation/Problem.h"
#include "plist/PropertyListBudget.h"
#include "values/PropertyValue.h"

namespace tonquil {

/// A file of the program's own that contains a dictionary as a property list.
class PropertyListFile {
 public:
    enum class State : std::uint8_t {
        Missing,
        Read,
        Damaged,     ///< Not a property list, not a dictionary, or beyond the budget.
        Unreadable,  ///< No permission, not a regular file, or a failing disk.
    };
    struct Contents {
        State state = State::Missing;
        /// Empty unless the file was read.
        PropertyValue dictionary = PropertyValue::object();
        /// Describes a damaged or unreadable file.
        Problem problem = {};

        /// The same as a log message.
        [[nodiscard]] std::string reason() const;
    };

    explicit PropertyListFile(std::filesystem::path path) : _path(std::move(path)) {}

    /// Far above any real file: 4 MiB, and the same for text.
    [[nodiscard]] static PropertyListBudget budget();
    [[nodiscard]] const std::filesystem::path& path() const { return _path; }

    [[nodiscard]] Contents read() const;
    /// Replaces the file atomically, mode 0600; flushed to disk on return, unless flushing is off.
    /// Its folder must exist.
    [[nodiscard]] Result<void> write(const PropertyValue& dictionary, bool isFlushed = true) const;
    /// Renames it to <name>.damaged-<time, UTC>, with a number appended if that name is taken, and
    /// returns the new path.
    [[nodiscard]] Result<std::filesystem::path> moveAside() const;

 private:
    std::filesystem::path _path;
};

/// Byte-wise equality: the library's operator treats no not-a-number as equal to another, and an
/// integer as equal to a real.
[[nodiscard]] bool isSame(const PropertyValue& a, const PropertyValue& b);

}  // namespace tonquil
