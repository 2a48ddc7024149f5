// SPDX-License-Identifier: MIT
#include "app/files/RecentFiles.h"

#include <algorithm>
#include <system_error>

#include "app/preferences/SettingsKeys.h"
#include "plist/Unicode.h"
#include "values/PropertyValue.h"

namespace tonquil {

std::vector<std::filesystem::path> RecentFiles::files() const {
    std::vector<std::filesystem::path> files;
    for (const std::string& text : _preferences.stringsForKey(settingsKey::recentFiles)) {
        std::error_code unknown;
        if (std::filesystem::exists(text, unknown) && files.size() < most) {
            files.emplace_back(text);
        }
    }
    return files;
}

void RecentFiles::add(const std::filesystem::path& file) {
    std::error_code unknown;
    const std::filesystem::path whole = std::filesystem::absolute(file, unknown).lexically_normal();
    // A file name may be any bytes, but the preferences can only store text.
    if (!isPropertyListText(whole.native())) {
        return;
    }
    std::vector<std::string> texts{whole.string()};
    for (const std::string& text : _preferences.stringsForKey(settingsKey::recentFiles)) {
        if (text != texts.front() && texts.size() < most) {
            texts.push_back(text);
        }
    }
    _preferences.setValue(settingsKey::recentFiles, texts);
}

}  // namespace tonquil
