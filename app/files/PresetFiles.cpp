// SPDX-License-Identifier: MIT
#include "app/files/PresetFiles.h"

#include <filesystem>
#include <system_error>

#include "app/preferences/SettingsKeys.h"
#include "foundation/TranslatableText.h"

namespace tonquil {

std::vector<PresetEntry> PresetFiles::entries() const {
    std::vector<PresetEntry> entries;
    for (const Preset& preset : _with.folder.presets()) {
        PresetEntry& entry = entries.emplace_back();
        entry.name = preset.name;
        if (preset.problem) {
            entry.problemKey = preset.problem->key();
            entry.problemArguments = preset.problem->arguments;
        }
    }
    return entries;
}

void PresetFiles::open(const std::string& name) {
    const auto file = _with.folder.fileNamed(name);
    if (file) {
        _with.files.openPreset(*file);
    } else {
        show(TONQUIL_TEXT("Problem", "The file was not opened"), file.error());
    }
}

void PresetFiles::saveAs() {
    std::vector<std::string> names;
    for (const Preset& preset : _with.folder.presets()) {
        names.push_back(preset.name);
    }
    _with.dialogs.choosePresetName(names, [this](const std::string& name) {
        if (const auto saved = save(name); !saved) {
            show(TONQUIL_TEXT("Problem", "Saving failed"), saved.error());
        }
    });
}

// A preset of the same name may have another extension: it is replaced, not joined by a second one.
Result<void> PresetFiles::save(const std::string& name) {
    const bool areAll = _with.preferences.boolForKey(settingsKey::affectAllScreens);
    auto place = _with.folder.placeFor(name, areAll ? ".tonquil-screens" : ".tonquil");
    if (!place) {
        return tl::unexpected(std::move(place.error()));
    }
    auto saved = _with.files.saveSettings(
        place->file, areAll ? SettingsFormat::MultiDisplay : SettingsFormat::SingleDisplay);
    if (saved && place->replaced && *place->replaced != place->file) {
        std::error_code stays;
        std::filesystem::remove(*place->replaced, stays);
    }
    return saved;
}

void PresetFiles::show(const std::string& title, const Problem& problem) const {
    _with.log(problem.sentence);
    _with.dialogs.alert(title, problem.key(), problem.arguments);
}

}  // namespace tonquil
