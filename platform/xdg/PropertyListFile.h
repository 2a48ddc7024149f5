// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

#include "foundation/Problem.h"
#include "plist/PropertyListBudget.h"
#include "values/PropertyValue.h"

namespace tonquil {

/// A file of the program's own that holds a dictionary as a property list.
class PropertyListFile {
 public:
    enum class State : std::uint8_t {
        Missing,
        Read,
        Damaged,     ///< Not a property list, not a dictionary, or beyond the budget.
        Unreadable,  ///< Not permitted, not a regular file, a failing disk.
    };
    struct Contents {
        State state = State::Missing;
        /// Empty unless it was read.
        PropertyValue dictionary = PropertyValue::object();
        /// What is damaged or unreadable.
        Problem problem = {};

        /// The same as a line for the log.
        [[nodiscard]] std::string reason() const;
    };

    explicit PropertyListFile(std::filesystem::path path) : _path(std::move(path)) {}

    /// Far above any real one: 4 MiB, of text as well.
    [[nodiscard]] static PropertyListBudget budget();
    [[nodiscard]] const std::filesystem::path& path() const { return _path; }

    [[nodiscard]] Contents read() const;
    /// Replaces it as a whole, mode 0600; on the disk on return, unless it is not flushed. Its
    /// folder must exist.
    [[nodiscard]] Result<void> write(const PropertyValue& dictionary, bool isFlushed = true) const;
    /// Renames it to <name>.damaged-<time, UTC>, or to that with a number behind it where the name
    /// is taken, and gives the new path.
    [[nodiscard]] Result<std::filesystem::path> moveAside() const;

 private:
    std::filesystem::path _path;
};

/// Equality to the byte: the library's own has no not-a-number equal to another, and an integer
/// equal to a real.
[[nodiscard]] bool isSame(const PropertyValue& a, const PropertyValue& b);

}  // namespace tonquil
