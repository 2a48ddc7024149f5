// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

#include "app/desktop/LoginItem.h"

namespace tonquil {

/// The login item, as a desktop file "tonquil.desktop" in the desktop's autostart folder.
///
/// A file that is hidden, disabled or unreadable counts as missing.
class AutostartLoginItem final : public LoginItem {
 public:
    /// `folder` is $XDG_CONFIG_HOME/autostart, which need not exist, and `launcher` the absolute
    /// path of the program to start.
    AutostartLoginItem(const std::filesystem::path& folder, std::filesystem::path launcher)
        : _file(folder / "tonquil.desktop"), _launcher(std::move(launcher)) {}

    [[nodiscard]] bool isEnabled() const override;
    /// Writes the file atomically, or removes it. Fails if the launcher cannot be executed, or the
    /// file cannot be written or removed.
    [[nodiscard]] Result<void> setEnabled(bool isEnabled) override;

 private:
    [[nodiscard]] Result<void> write() const;

    std::filesystem::path _file;
    std::filesystem::path _launcher;
};

}  // namespace tonquil
