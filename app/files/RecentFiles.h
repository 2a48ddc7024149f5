// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <utility>
#include <vector>

#include "app/preferences/PreferencesStore.h"

namespace tonquil {

/// The most recently opened or saved settings files, stored in the preferences.
class RecentFiles {
 public:
    static constexpr std::size_t most = 8;

    explicit RecentFiles(PreferencesStore& preferences) : _preferences(preferences) {}

    /// Newest first; files that no longer exist are left out.
    [[nodiscard]] std::vector<std::filesystem::path> files() const;
    /// Does nothing if the name is not valid text.
    void add(const std::filesystem::path& file);

 private:
    PreferencesStore& _preferences;
};

}  // namespace tonquil
