// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <vector>

#include "app/curves/CurveEditing.h"
#include "app/files/FileDialogs.h"
#include "app/files/RecentFiles.h"
#include "foundation/Log.h"
#include "settings/Settings.h"

namespace tonquil {

/// Opens and saves settings files. On failure the panel shows an alert and nothing is changed.
class SettingsFiles {
 public:
    struct Surroundings {
        DisplayService& service;
        ScreenRegistry& registry;
        PreferencesStore& preferences;
        RunLoop& runLoop;
        FileDialogs& dialogs;
        CurrentScreens& currentScreens;
        CurveEditing& editing;
        CurveStorage& storage;
        PanelView& view;
        Log log;
    };

    explicit SettingsFiles(const Surroundings& surroundings)
        : _with(surroundings), _recentFiles(surroundings.preferences) {}

    /// Asks for a file and opens it.
    void loadGamma();
    /// Asks for a location and a format, and saves there.
    void saveGamma();
    /// Opens a file after the current event.
    void openFile(const std::filesystem::path& file);
    /// The same for a file that the recent ones need not name.
    void openPreset(const std::filesystem::path& file);
    /// The curve of the first current display, or those of all displays, as a settings file.
    [[nodiscard]] Result<void> saveSettings(const std::filesystem::path& file,
                                            SettingsFormat format);
    /// Turns tables on the current displays into curves, and says how close those come.
    void makeEditable();
    /// Newest first.
    [[nodiscard]] std::vector<std::filesystem::path> recentFiles() const {
        return _recentFiles.files();
    }

 private:
    /// Returns whether the file's settings were applied.
    bool _openFile(const std::filesystem::path& file);
    bool openSettings(const SingleDisplaySettings& settings);
    bool openSettings(const MultiDisplaySettings& settings);
    bool openSettings(const RawTableSettings& settings);
    bool openSettings(const CalibrationSettings& settings);
    bool refuseFile(const Problem& problem);
    void savePanelDidEnd(const std::filesystem::path& file, SettingsFormat format);
    [[nodiscard]] Result<void> saveCurrentCurve(const std::filesystem::path& file);
    [[nodiscard]] Result<void> exportTable(const std::filesystem::path& file,
                                           SettingsFormat format);

    Surroundings _with;
    RecentFiles _recentFiles;
};

}  // namespace tonquil
