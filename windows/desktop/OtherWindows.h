// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>
#include <functional>
#include <memory>
#include <utility>

#include "app/desktop/ProgramWindows.h"
#include "screens/DisplayService.h"
#include "windows/about/KVAboutBoxController.h"
#include "windows/preferences/TQPrefController.h"

namespace tonquil {

/// The preferences and about windows, each created on first use.
class OtherWindows final : public ProgramWindows {
 public:
    struct Surroundings {
        PreferencesSurroundings preferences;
        DisplayService& service;
        /// The panel floats above other programs' windows; the about window stays above the panel.
        QWidget& panel;
        BundleInformation bundle;
        /// Called with each new window before it is shown.
        std::function<void(QWidget&)> windowMade;
        /// Called to suspend the hot keys or resume them.
        std::function<void(bool areSuspended)> suspendHotKeys;
    };
    explicit OtherWindows(Surroundings surroundings);
    ~OtherWindows() override;
    OtherWindows(const OtherWindows&) = delete;
    OtherWindows& operator=(const OtherWindows&) = delete;

    void setAccessibilityOptions(const AccessibilityOptions& options);

    /// Shows in the preferences who gives the hot keys their keys, and which.
    void showHotKeyAssignment(HotKeyAssignment assignment);

    void setAboutBackground(double red, double green, double blue) override;
    void openPreferences() override;
    [[nodiscard]] bool isPreferencesWindowLoaded() const override { return _prefs != nullptr; }
    [[nodiscard]] bool isPreferencesWindowShown() const override;
    void openAboutBox() override;
    void openAddress(std::string_view key) override;
    void showHotKeyProblem(HotKeyRole role, const std::string& sentence) override;
    void showRemoteProblem(const std::string& sentence) override;
    void saveFrames() override;

    /// Whether a key has a web page: a build of the program may have none.
    [[nodiscard]] static bool hasAddress(std::string_view key);

 private:
    void makePreferences();
    void keepAbovePanel(QWidget& window) const;

    Surroundings _;
    AccessibilityOptions _options;
    HotKeyAssignment _hotKeyAssignment;
    std::string _toggleProblem;
    std::string _panelProblem;
    std::string _remoteProblem;
    std::unique_ptr<TQPrefController> _prefs;
    std::unique_ptr<KVAboutBoxController> _about;
};

}  // namespace tonquil
