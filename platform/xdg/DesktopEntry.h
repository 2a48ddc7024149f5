// SPDX-License-Identifier: MIT
#pragma once

#include <glib.h>

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "foundation/Problem.h"

namespace tonquil {

/// The group "Desktop Entry" of a desktop file.
class DesktopEntry {
 public:
    /// Reads a file of at most 64 KiB.
    [[nodiscard]] static Result<DesktopEntry> read(const std::filesystem::path& file);
    [[nodiscard]] static Result<DesktopEntry> parse(std::string_view text);

    /// Empty if the key is missing.
    [[nodiscard]] std::string value(const std::string& key) const;
    /// The value for the language of `locale` (such as "de_AT.UTF-8@euro"), or the closest match,
    /// else the untranslated one.
    [[nodiscard]] std::string localizedValue(const std::string& key,
                                             const std::string& locale) const;
    /// Returns `otherwise` for anything but "true" and "false".
    [[nodiscard]] bool boolValue(const std::string& key, bool otherwise) const;

    void setValue(const std::string& key, const std::string& value);
    /// The whole file.
    [[nodiscard]] std::string text() const;

    /// An empty entry.
    DesktopEntry() : _keys(g_key_file_new()) {}

    /// Quotes `argument` as one argument of the command line in the key Exec.
    [[nodiscard]] static std::string quotedArgument(std::string_view argument);

 private:
    struct Unref {
        void operator()(GKeyFile* keys) const { g_key_file_unref(keys); }
    };

    std::unique_ptr<GKeyFile, Unref> _keys;
};

}  // namespace tonquil
