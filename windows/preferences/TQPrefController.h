// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <QRect>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "app/preferences/HotKeyAssignment.h"
#include "app/preferences/PreferencesStore.h"
#include "app/preferences/StoredHotKey.h"
#include "ui/theme/Appearance.h"
#include "windows/preferences/PreferencesSurroundings.h"

class QCheckBox;

namespace tonquil {

class DDHotKeyTextField;
class PreferencesWindow;
class RadioMatrix;
class SettingBinding;

/// Runs the preferences window: each control writes its setting at once, and interested code sees
/// the change in the preferences store.
///
/// The controls are filled when the window is created. Only the colours of the window and the
/// controls bound to their settings follow changes from elsewhere.
class TQPrefController {
 public:
    explicit TQPrefController(PreferencesSurroundings surroundings);
    TQPrefController(const TQPrefController&) = delete;
    TQPrefController& operator=(const TQPrefController&) = delete;
    ~TQPrefController();

    [[nodiscard]] PreferencesWindow& window() { return *_window; }
    /// Shows the window in front, with no control focused.
    void showWindow();
    /// Stops recording a hot key; the window may always close.
    bool windowShouldClose();
    /// Fills every control except the bound ones from its setting.
    void update();

    /// The contents' rectangle, in points; see `devicePixelsFrom`. The size follows from the
    /// controls.
    [[nodiscard]] QRect frame() const;
    void setFrameOrigin(const QPoint& origin);
    /// Called when the window has closed.
    void setClosed(std::function<void()> closed);

    /// Shows who gives the hot keys their keys, and which.
    void showHotKeyAssignment(const HotKeyAssignment& assignment);
    /// Shows beside its field why a hot key does not work; an empty sentence clears it.
    void showHotKeyProblem(HotKeyRole role, const std::string& sentence);
    /// The same below the checkbox that allows companions to connect.
    void showRemoteProblem(const std::string& sentence);
    /// Called when recording begins and ends: the program's hot keys should be suspended meanwhile.
    void setRecordingHooks(std::function<void()> began, std::function<void()> ended);
    /// The user's desktop-wide accessibility settings.
    void setAccessibilityOptions(const AccessibilityOptions& options);

    void hitRememberWhenQuitting(const QCheckBox& sender);
    void hitContinuouslyApply(const QCheckBox& sender);
    void hitAdvancedPanel(const QCheckBox& sender);
    void hitShowAtLaunch(const QCheckBox& sender);
    void hitAffectAllScreens(const RadioMatrix& sender);
    void hitToggleApply(const RadioMatrix& sender);
    void hitShowStatusItem(const RadioMatrix& sender);
    void hitUseHotKey(const QCheckBox& sender);
    void hitPanelHotKey(const QCheckBox& sender);
    void hotKeyDidChange(const DDHotKeyTextField& sender);
    void panelHotKeyDidChange(const DDHotKeyTextField& sender);
    void openAtLoginDidChange(const QCheckBox& sender);

 private:
    void windowDidLoad();
    void connectActions();
    void bindSettings();
    void followTheme();
    void setBool(std::string_view key, int value);
    void showTriggers();
    void moveFocus(bool isOn, DDHotKeyTextField& field);
    void setLoginItemEnabled(bool isEnabled);
    void adviseOnPlace();

    PreferencesSurroundings _surroundings;
    PreferencesStore& _preferences;
    AccessibilityOptions _options;
    std::unique_ptr<PreferencesWindow> _window;
    bool _hasBeenShown = false;
    HotKeyAssignment _assignment;
    /// Declared to be destroyed before the checkboxes that they are bound to.
    std::vector<std::unique_ptr<SettingBinding>> _bindings;
    std::unique_ptr<PreferencesStore::Subscription> _themeSubscription;
    std::function<void()> _recordingBegan;
    std::function<void()> _recordingEnded;
};

}  // namespace tonquil
