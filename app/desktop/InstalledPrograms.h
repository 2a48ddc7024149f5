// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace tonquil {

/// A program that the desktop knows.
struct InstalledProgram {
    /// As the desktop shows it, in the person's language; never empty.
    std::string name;
    /// The desktop's name of its icon, or the path of its file; empty where it has none.
    std::string icon;
};

/// The programs on this computer.
class InstalledPrograms {
 public:
    virtual ~InstalledPrograms() = default;

    /// The first that is installed of those with the desktop file IDs `candidates` (such as
    /// "tonquil.desktop"), in their order.
    [[nodiscard]] virtual std::optional<InstalledProgram> firstInstalled(
        std::span<const std::string_view> candidates) const = 0;
};

}  // namespace tonquil
