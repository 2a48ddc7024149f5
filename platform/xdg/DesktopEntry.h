// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <string_view>

#include "foundation/Problem.h"

namespace tonquil {

/// What a desktop file says of its program: the keys of its group "Desktop Entry".
class DesktopEntry {
 public:
    /// Reads a file of at most 64 KiB.
    [[nodiscard]] static Result<DesktopEntry> read(const std::filesystem::path& file);
    /// Never fails: lines that are no entries are passed by, and of a repeated key the first
    /// counts.
    [[nodiscard]] static DesktopEntry parse(std::string_view text);

    /// The value with its escapes undone; empty where the key is missing.
    [[nodiscard]] std::string value(const std::string& key) const;
    /// The value in the language of `locale` (such as "de_AT.UTF-8@euro"), as near as there is
    /// one, else without a language.
    [[nodiscard]] std::string localizedValue(const std::string& key, std::string_view locale) const;
    /// What is neither "true" nor "false" reads as `otherwise`.
    [[nodiscard]] bool boolValue(const std::string& key, bool otherwise) const;

    /// Writes `argument` as one argument of a program's command line, quoted and escaped as the
    /// key Exec needs it.
    [[nodiscard]] static std::string quotedArgument(std::string_view argument);

 private:
    /// As written, with their escapes.
    std::map<std::string, std::string> _values;
};

}  // namespace tonquil
