// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "app/desktop/InstalledPrograms.h"

namespace tonquil {

/// The programs that have a desktop file.
///
/// A file in an earlier folder hides those of the same name in later ones. A program whose file is
/// marked as hidden, or that would not start because its `TryExec` is missing, counts as not
/// installed; one that is only left out of menus is installed. Subfolders are not searched.
class DesktopEntries final : public InstalledPrograms {
 public:
    /// Where to look, and for which language.
    struct Places {
        /// The "applications" folders, most important first.
        std::vector<std::filesystem::path> applications;
        /// The folders in which programs are looked up by name.
        std::vector<std::filesystem::path> programs;
        /// The user's language, as in LC_MESSAGES; may be empty.
        std::string locale;
    };

    explicit DesktopEntries(Places places);
    /// From XDG_DATA_HOME, XDG_DATA_DIRS, PATH, LC_ALL, LC_MESSAGES and LANG.
    [[nodiscard]] static Places fromEnvironment();

    [[nodiscard]] std::optional<InstalledProgram> firstInstalled(
        std::span<const std::string_view> candidates) const override;

 private:
    [[nodiscard]] std::optional<InstalledProgram> find(std::string_view desktopFileID) const;
    [[nodiscard]] bool canStart(const std::string& program) const;

    Places _places;
};

}  // namespace tonquil
