// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "app/ControllerSurroundings.h"
#include "app/correction/Correction.h"
#include "app/correction/PeriodicUpdate.h"
#include "app/correction/Reapplication.h"
#include "app/correction/ReconfigurationObserver.h"
#include "app/curves/CurveEditing.h"
#include "app/desktop/RestorableWindows.h"
#include "app/desktop/StatusItem.h"
#include "app/files/PresetFiles.h"
#include "app/files/SettingsFiles.h"
#include "app/panel/ControllerHotKeys.h"
#include "app/panel/PanelActions.h"
#include "app/panel/PanelFrame.h"
#include "app/panel/PanelUnderMouse.h"
#include "app/remote/RemoteConfiguration.h"
#include "screens/HandedCurves.h"

namespace tonquil {

/// The program's coordinator: starts and shuts down everything in order, and passes events to the
/// classes responsible for them.
class TQController final : public PanelActions {
 public:
    explicit TQController(ControllerSurroundings surroundings);
    TQController(const TQController&) = delete;
    TQController& operator=(const TQController&) = delete;
    ~TQController() override = default;

    /// Starts everything. The steps depend on their order.
    void applicationDidFinishLaunching();
    /// Saves everything. The correction stays on the displays. Calling it again does nothing.
    void applicationWillTerminate();
    /// The program was started again while running.
    void applicationShouldHandleReopen();

    [[nodiscard]] bool applyCorrection() const { return _correction.applyCorrection(); }
    void setApplyCorrection(bool isOn) { _correction.setApplyCorrection(isOn); }
    void toggleApplyCorrection() override { setApplyCorrection(!applyCorrection()); }
    void _applyCurvesToScreen() { _correction._applyCurvesToScreen(); }
    void showPanel();
    /// Adopts curves from another program, as an edit, and switches the correction on if they need
    /// it. A problem if a display is not attached, and then nothing is changed, or if it cannot
    /// show its curve for the moment.
    Result<void> takeCurves(const HandedCurves& curves);
    /// Shows a target in the floating window or, given a display's reference ID, covering that
    /// display.
    void showTarget(std::optional<TargetKind> kind, const std::string& referenceID);

    void applyGamma(PanelSlider sender, bool isLinked) override {
        _editing.applyGamma(sender, isLinked);
    }
    void endEdit() override { _editing.endEdit(); }
    void changeBlendingMode() override { _editing.changeBlendingMode(); }
    void changeApplyCorrection(bool isOn) override { setApplyCorrection(isOn); }
    void compare(bool isHeld) override { _correction.setCompared(isHeld); }
    void resetGamma() override { _editing.resetGamma(); }
    void setSelectedTab(int index) override;
    void setAffectsAllScreens(bool affectsAll) override;
    [[nodiscard]] std::vector<PanelDisplay> displays() override {
        return _currentScreens.displays();
    }
    void editDisplay(DisplayID display) override;
    void identifyDisplays() override;
    void setAdvancedPanel(bool advanced) override;
    void setDarkTheme(bool dark) override;
    void setChannelStrip(bool isShown) override;
    void undo() override { _editing.undo(); }
    void redo() override { _editing.redo(); }
    void togglePanel() override;
    void panelMoved() override { _view.panelMoved(); }
    [[nodiscard]] std::optional<PlottedCurves> plottedCurves() override {
        return _view.plottedCurves();
    }
    void openTargetWindow() override { _restorableWindows.openTargetWindow(std::nullopt); }
    void openPreferences() override { _with.windows.openPreferences(); }
    void openAboutBox() override { _with.windows.openAboutBox(); }
    void openWebSite() override { _with.windows.openAddress("TQWebSite"); }
    void gammaBoardInfo() override { _with.windows.openAddress("TQBoardWebSite"); }
    void loadGamma() override { _files.loadGamma(); }
    void saveGamma() override { _files.saveGamma(); }
    void openFile(const std::filesystem::path& file) override { _files.openFile(file); }
    [[nodiscard]] std::vector<std::filesystem::path> recentFiles() const override {
        return _files.recentFiles();
    }
    [[nodiscard]] std::vector<PresetEntry> presets() const override { return _presets.entries(); }
    void openPreset(const std::string& name) override { _presets.open(name); }
    void savePreset() override { _presets.saveAs(); }
    [[nodiscard]] bool canMakeEditable() override { return _editing.hasTable(); }
    void makeEditable() override { _files.makeEditable(); }
    void quit() override { _with.endProgram(); }

    /// Disables hot keys while the user records a combination, so that one of them can be recorded.
    void setHotKeysSuspended(bool areSuspended) { _hotKeys.setSuspended(areSuspended); }
    /// What session restore saves: a dictionary of the states of the visible windows, by
    /// identifier.
    [[nodiscard]] PropertyValue restorableWindows() const {
        return _restorableWindows.restorableWindows();
    }
    /// Restores a window; false if the identifier is unknown.
    bool restoreWindowWithIdentifier(std::string_view identifier, const PropertyValue& state) {
        return _restorableWindows.restoreWindowWithIdentifier(identifier, state);
    }
    /// Sends the displays' state to subscribed companions, after the current event.
    void pushStateUpdate() { _remote.pushStateUpdate(); }

 private:
    /// Warns of a rival program that also sets gamma ramps; false if the user chooses to quit.
    [[nodiscard]] bool checkForConflict();
    void _initDefaults();
    void _adoptDefaultCurves();
    /// The part of the setup that needs the panel's window.
    void finishPanelSetUp();
    void observeSurroundings();
    void sessionEvent(SessionEvent event);
    void reapply();
    /// Reads the displays' current calibrations, for curves to use the next time they are applied;
    /// returns whether one changed.
    bool adoptCalibration();
    void _changedDefaults();
    void _applyDefaultsToPanel();
    /// Updates the panel's form and theme and the targets' hints from the preferences.
    void applyAppearance();
    void updateStatusItem() { _statusItem.updateStatusItem(applyCorrection()); }
    void updateHotKey() { _hotKeys.updateHotKey(); }
    void updateScreens();
    [[nodiscard]] int storedTab() const;
    void showCorrection(bool isOn);
    void showHotKeyProblem(HotKeyRole role, const std::string& sentence);
    [[nodiscard]] ControllerHotKeys::Actions hotKeyActions();

    ControllerSurroundings _with;
    CurrentScreens _currentScreens;
    CurrentCurve _currentCurve;
    Correction _correction;
    CurveStorage _storage;
    EditHistory _history;
    PanelView _view;
    CurveEditing _editing;
    SettingsFiles _files;
    PresetFiles _presets;
    PanelFrame _panelFrame;
    PeriodicUpdate _periodicUpdate;
    Reapplication _reapplication;
    ReconfigurationObserver _reconfigurations;
    StatusItem _statusItem;
    RestorableWindows _restorableWindows;
    ControllerHotKeys _hotKeys;
    PanelUnderMouse _panelUnderMouse;
    RemoteConfiguration _remote;

    bool _mayCalibrationHaveChanged = false;
    bool _hasTerminated = false;
    std::unique_ptr<PreferencesStore::Subscription> _preferencesSubscription;
    std::unique_ptr<DisplayService::Subscription> _reconfigurationSubscription;
};

}  // namespace tonquil
