// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <utility>
#include <vector>

#include "app/preferences/PreferencesStore.h"

namespace tonquil {

/// The settings files that were opened or saved last, kept in the preferences.
class RecentFiles {
 public:
    static constexpr std::size_t most = 8;

    explicit RecentFiles(PreferencesStore& preferences) : _preferences(preferences) {}

    /// Newest first; those that are gone are left out.
    [[nodiscard]] std::vector<std::filesystem::path> files() const;
    /// Does nothing for a name that is no text.
    void add(const std::filesystem::path& file);

 private:
    PreferencesStore& _preferences;
};

}  // namespace tonquil
