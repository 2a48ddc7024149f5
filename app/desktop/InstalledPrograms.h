// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace tonquil {

/// An installed program.
struct InstalledProgram {
    /// Display name in the user's language; never empty.
    std::string name;
    /// Icon name in the desktop's theme, or path of an icon file; empty if it has none.
    std::string icon;
};

/// Looks up programs installed on this computer.
class InstalledPrograms {
 public:
    virtual ~InstalledPrograms() = default;

    /// The first installed program among the desktop file IDs `candidates` (such as
    /// "tonquil.desktop"), in their order.
    [[nodiscard]] virtual std::optional<InstalledProgram> firstInstalled(
        std::span<const std::string_view> candidates) const = 0;
};

}  // namespace tonquil
