// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "app/ControllerSurroundings.h"
#include "app/correction/Correction.h"
#include "app/correction/PeriodicUpdate.h"
#include "app/correction/ReconfigurationObserver.h"
#include "app/curves/CurrentCurve.h"
#include "app/curves/CurrentScreens.h"
#include "app/curves/CurveStorage.h"
#include "app/curves/EditHistory.h"
#include "app/desktop/StatusItem.h"
#include "app/files/RecentFiles.h"
#include "app/panel/ControllerHotKeys.h"
#include "app/panel/PanelActions.h"
#include "app/panel/PanelFrame.h"
#include "app/panel/PanelUnderMouse.h"
#include "app/remote/RemoteDisplays.h"
#include "settings/Settings.h"

namespace tonquil {

/// The program's coordinator: starts and ends it, joins the panel with the displays, and answers
/// what happens around it. What takes rules of its own is in the classes that it is made of.
class TQController final : public PanelActions {
 public:
    explicit TQController(const ControllerSurroundings& surroundings);
    TQController(const TQController&) = delete;
    TQController& operator=(const TQController&) = delete;
    ~TQController() override = default;

    /// Starts everything, in an order that the steps rely on.
    void applicationDidFinishLaunching();
    /// Saves everything. The correction stays on the displays. A second call does nothing.
    void applicationWillTerminate();
    /// The program was started again while it runs.
    void applicationShouldHandleReopen();

    [[nodiscard]] bool applyCorrection() const { return _correction.applyCorrection(); }
    void setApplyCorrection(bool isOn) { _correction.setApplyCorrection(isOn); }
    void toggleApplyCorrection() { setApplyCorrection(!applyCorrection()); }
    void showPanel();
    void _applyCurvesToScreen() { _correction._applyCurvesToScreen(); }

    void applyGamma(PanelSlider sender, bool isLinked) override;
    void endEdit() override { _history.endStep(); }
    void changeBlendingMode() override;
    void changeApplyCorrection(bool isOn) override { setApplyCorrection(isOn); }
    void resetGamma() override;
    void setSelectedTab(int index) override;
    void setAffectsAllScreens(bool affectsAll) override;
    void setAdvancedPanel(bool advanced) override;
    void setDarkTheme(bool dark) override;
    void setChannelStrip(bool isShown) override;
    void undo() override;
    void redo() override;
    void panelMoved() override;
    [[nodiscard]] std::optional<PlottedCurves> plottedCurves() override;
    void openTargetWindow() override;
    void openPreferences() override { _windows.openPreferences(); }
    void openAboutBox() override { _windows.openAboutBox(); }
    void openWebSite() override { _windows.openAddress("TQWebSite"); }
    void gammaBoardInfo() override { _windows.openAddress("TQBoardWebSite"); }
    /// Shows a target, floating or, where a display is named by its reference ID, all over it.
    void showTarget(std::optional<TargetKind> kind, const std::string& referenceID);
    void loadGamma() override;
    void saveGamma() override;
    /// Opens a settings file after the event being handled.
    void openFile(const std::filesystem::path& file) override;
    [[nodiscard]] std::vector<std::filesystem::path> recentFiles() const override {
        return _recentFiles.files();
    }
    void quit() override { _endProgram(); }

    /// Follows the two hot keys of the preferences.
    void updateHotKey() { _hotKeys.updateHotKey(); }
    /// Hot keys reach nobody while a combination is being recorded, so that it can be one of them.
    void setHotKeysSuspended(bool areSuspended) { _hotKeys.setSuspended(areSuspended); }
    void showPanelAndCenterMouse() { _panelUnderMouse.showPanelAndCenterMouse(); }
    void showPanelAndCenterMouseRelease() { _panelUnderMouse.showPanelAndCenterMouseRelease(); }
    /// Follows the preferences with the status item and the entries in the task bar.
    void updateStatusItem() { _statusItem.updateStatusItem(applyCorrection()); }
    /// What a session that ends is to bring back: a dictionary of the states of the windows that
    /// are shown, by their identifiers.
    [[nodiscard]] PropertyValue restorableWindows() const;
    /// Shows a window as it was; false where there is none of this identifier.
    bool restoreWindowWithIdentifier(std::string_view identifier, const PropertyValue& state);
    /// Tells the companions that have subscribed how the displays are, after the current event.
    void pushStateUpdate();

 private:
    void _initDefaults();
    void _changedDefaults();
    void _applyDefaultsToPanel();
    /// Runs a server for companions, or none, as the preferences want it.
    void _applyDefaultsToServer();
    void broadcastTestFailed();
    void showCorrection(bool isOn);
    void makeTargetWindowRestorable();
    void showHotKeyProblem(HotKeyRole role, const std::string& sentence);
    /// Shows the curve of the display at a point of the desktop.
    void showCurveAt(const Point& point);
    [[nodiscard]] PanelUnderMouse::Surroundings panelUnderMouseSurroundings(
        const ControllerSurroundings& surroundings);
    [[nodiscard]] ControllerHotKeys::Actions hotKeyActions();
    [[nodiscard]] RemoteDisplays::Reactions remoteReactions();
    /// Warns of a program that fights for the displays; false where the person quits over it.
    [[nodiscard]] bool checkForConflict();
    void _adoptDefaultCurves();
    void _adoptCurrentCurves();
    void _changeScreen();
    void _doneReset();
    /// Whether each of the screens has a curve of these values already.
    [[nodiscard]] static bool haveCurve(const ScreenRegistry::Screens& screens,
                                        const KVGammaCurve& curve);
    void replaceCurves(int subject);
    void _updateCurveInPanel();
    /// Enables the controls, except where there is nothing that they could change.
    void _setControlsEnabled(bool enabled);
    [[nodiscard]] int storedTab() const;
    void finishPanelSetUp();
    /// Returns whether the file's settings are in force now.
    bool _openFile(const std::filesystem::path& file);
    bool openSettings(const SingleDisplaySettings& settings);
    bool openSettings(const MultiDisplaySettings& settings);
    bool openSettings(const RawTableSettings& settings);
    bool refuseFile(const Problem& problem);
    void savePanelDidEnd(const std::filesystem::path& file, SettingsFormat format);
    [[nodiscard]] Result<void> saveCurrentCurve(const std::filesystem::path& file);
    void observeSession();
    void updateScreens();
    /// Puts the panel back into view when the display that it was on has gone.
    void bringPanelBack();
    /// Shows the edit that was made, and sees to it that it is kept.
    void curvesWereEdited();

    DisplayService& _service;
    ScreenRegistry& _registry;
    PreferencesStore& _preferences;
    RunLoop& _runLoop;
    PanelControls& _controls;
    PanelWindow& _panel;
    FileDialogs& _dialogs;
    TargetWindows& _targets;
    ProgramWindows& _windows;
    Alerts& _alerts;
    DesktopPresence& _presence;
    const InstalledPrograms& _programs;
    Log _log;
    std::vector<SessionEvents*> _sessionEvents;
    std::function<void()> _endProgram;
    std::function<std::unique_ptr<TQPlayerServer>()> _openServer;

    CurrentScreens _currentScreens;
    CurrentCurve _currentCurve;
    Correction _correction;
    CurveStorage _storage;
    EditHistory _history;
    PanelFrame _panelFrame;
    RecentFiles _recentFiles;
    PeriodicUpdate _periodicUpdate;
    ReconfigurationObserver _reconfigurations;
    StatusItem _statusItem;
    ControllerHotKeys _hotKeys;
    PanelUnderMouse _panelUnderMouse;
    RemoteDisplays _remoteDisplays;

    std::optional<DisplayID> _displayUnderPanel;
    bool _shownAffectsAllScreens = false;
    bool _areControlsEnabled = false;
    /// A settings file has been opened in this run.
    bool _openedFile = false;
    bool _hasTerminated = false;
    /// Nothing before the floating window of targets is made.
    std::optional<bool> _isTargetWindowRestorable;
    std::unique_ptr<RunLoop::Handle> _resetTimer;
    std::unique_ptr<TQPlayerServer> _playerServer;
    std::unique_ptr<PreferencesStore::Subscription> _preferencesSubscription;
    std::unique_ptr<DisplayService::Subscription> _reconfigurationSubscription;
};

}  // namespace tonquil
