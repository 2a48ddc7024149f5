// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "app/Correction.h"
#include "app/CurrentCurve.h"
#include "app/CurrentScreens.h"
#include "app/CurveStorage.h"
#include "app/EditHistory.h"
#include "app/FileDialogs.h"
#include "app/PanelActions.h"
#include "app/PanelFrame.h"
#include "app/PeriodicUpdate.h"
#include "app/RecentFiles.h"
#include "app/ReconfigurationObserver.h"
#include "app/SessionEvents.h"
#include "app/TargetWindows.h"
#include "settings/Settings.h"

namespace tonquil {

/// What the controller works with. All of it must outlive the controller.
struct ControllerSurroundings {
    DisplayService& service;
    ScreenRegistry& registry;
    ReconfigurationCounter& reconfigurations;
    PreferencesStore& preferences;
    CurveRecovery& recovery;
    RunLoop& runLoop;
    PanelControls& controls;
    PanelWindow& panel;
    FileDialogs& dialogs;
    TargetWindows& targets;
    /// Where session events come from; may be empty.
    std::vector<SessionEvents*> sessionEvents;
    /// Why there are no displays, where there never will be any; else empty.
    std::string whyNoDisplays;
    /// Ends the program's run loop, after which `applicationWillTerminate` is due.
    std::function<void()> endProgram;
    Log log;
};

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
    void openTargetWindow() override { _targets.openTargetWindow(); }
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

 private:
    void _initDefaults();
    void _changedDefaults();
    void _applyDefaultsToPanel();
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
    Log _log;
    std::vector<SessionEvents*> _sessionEvents;
    std::function<void()> _endProgram;

    CurrentScreens _currentScreens;
    CurrentCurve _currentCurve;
    Correction _correction;
    CurveStorage _storage;
    EditHistory _history;
    PanelFrame _panelFrame;
    RecentFiles _recentFiles;
    PeriodicUpdate _periodicUpdate;
    ReconfigurationObserver _reconfigurations;

    std::optional<DisplayID> _displayUnderPanel;
    bool _shownAffectsAllScreens = false;
    bool _areControlsEnabled = false;
    /// A settings file has been opened in this run.
    bool _openedFile = false;
    bool _hasTerminated = false;
    std::unique_ptr<RunLoop::Handle> _resetTimer;
    std::unique_ptr<PreferencesStore::Subscription> _preferencesSubscription;
    std::unique_ptr<DisplayService::Subscription> _reconfigurationSubscription;
};

}  // namespace tonquil
