// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "foundation/Problem.h"

namespace tonquil {

/// A settings file in the folder of presets.
struct Preset {
    /// The file's name without its extension; with it if two differ only in that.
    std::string name;
    std::filesystem::path file;
    /// Why it cannot be applied.
    std::optional<Problem> problem;
};

/// Where a preset is saved.
struct PresetPlace {
    std::filesystem::path file;
    /// The preset of the same name, perhaps with another extension.
    std::optional<std::filesystem::path> replaced;
};

/// The folder in which people keep settings files that they want to choose by name.
class PresetFolder {
 public:
    /// Further files are not listed.
    static constexpr std::size_t most = 64;
    /// In characters; short enough for a file name in UTF-8.
    static constexpr int longestName = 50;

    /// The folder need not exist.
    explicit PresetFolder(std::filesystem::path folder) : _folder(std::move(folder)) {}

    /// In order of name, without regard to the case of ASCII letters. Reads every file to see
    /// whether it can be applied; hidden files are not presets.
    [[nodiscard]] std::vector<Preset> presets() const;
    /// The file of a preset, broken or not.
    [[nodiscard]] Result<std::filesystem::path> fileNamed(std::string_view name) const;
    /// Where to save a preset; creates the folder. Fails if no preset can have that name, or if the
    /// file to be written, or the name's, is that of another preset.
    [[nodiscard]] Result<PresetPlace> placeFor(std::string_view name,
                                               std::string_view extension) const;

 private:
    [[nodiscard]] std::vector<Preset> list() const;

    std::filesystem::path _folder;
};

}  // namespace tonquil
