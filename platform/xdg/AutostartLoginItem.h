// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

#include "app/desktop/LoginItem.h"

namespace tonquil {

/// The login item as a desktop file "tonquil.desktop" among those that desktops start at login.
///
/// A file that is marked as hidden or switched off, or that cannot be read, counts as not there.
class AutostartLoginItem final : public LoginItem {
 public:
    /// `folder` is $XDG_CONFIG_HOME/autostart, which need not exist, and `launcher` the absolute
    /// path of the program that is to be started.
    AutostartLoginItem(const std::filesystem::path& folder, std::filesystem::path launcher)
        : _file(folder / "tonquil.desktop"), _launcher(std::move(launcher)) {}

    [[nodiscard]] bool isEnabled() const override;
    /// Writes the file as a whole, or removes it. Fails where the launcher cannot be started or
    /// the file not be written or removed.
    [[nodiscard]] Result<void> setEnabled(bool isEnabled) override;

 private:
    [[nodiscard]] Result<void> write() const;

    std::filesystem::path _file;
    std::filesystem::path _launcher;
};

}  // namespace tonquil
