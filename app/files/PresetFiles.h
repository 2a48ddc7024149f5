// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "app/files/SettingsFiles.h"
#include "app/panel/PanelActions.h"
#include "settings/PresetFolder.h"

namespace tonquil {

/// The presets of the menus: lists, opens and saves them. What fails is shown and changes nothing.
class PresetFiles {
 public:
    struct Surroundings {
        PresetFolder folder;
        PreferencesStore& preferences;
        FileDialogs& dialogs;
        SettingsFiles& files;
        Log log;
    };

    explicit PresetFiles(Surroundings surroundings) : _with(std::move(surroundings)) {}

    /// In order of name; reads their files.
    [[nodiscard]] std::vector<PresetEntry> entries() const;
    /// Opens a preset after the current event.
    void open(const std::string& name);
    /// Asks for a name and saves what the panel edits: the curves of all displays, or the current
    /// one's.
    void saveAs();

 private:
    [[nodiscard]] Result<void> save(const std::string& name);
    void show(const std::string& title, const Problem& problem) const;

    Surroundings _with;
};

}  // namespace tonquil
