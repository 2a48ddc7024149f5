// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "app/TQController.h"
#include "app/preferences/SettingsKeys.h"
#include "model/KVGammaPoint.h"
#include "platform/simulated/SimulatedDisplayService.h"
#include "tests/app/DesktopFakes.h"
#include "tests/app/PlainStore.h"
#include "tests/remote/ServerBench.h"
#include "tests/support/ManualRunLoop.h"

namespace tonquil {

inline constexpr DisplayID left = 1;
inline constexpr DisplayID right = 2;

/// A panel without a window.
class RecordedPanel final : public PanelControls, public PanelWindow {
 public:
    explicit RecordedPanel(Journal& journal) : _journal(journal) {}

    [[nodiscard]] PanelValues values() const override { return shown; }
    void setValues(const PanelValues& values) override { shown = values; }
    void revertTyping() override {}
    void letGo() override { _journal.emplace_back("let go"); }
    void setSlider(PanelSlider slider, float value) override { shown[slider] = value; }
    void selectBlendingMode(std::int32_t mode) override { shown.blendingMode = mode; }
    void updateTouchBarSlider() override {}
    void _setControlsEnabled(bool isEnabled) override {
        enabled = isEnabled;
        _journal.emplace_back(isEnabled ? "controls enabled" : "controls disabled");
    }
    void showCorrection(bool isOn) override { correction = isOn; }
    void showSubject(const PanelSubject& now) override { subject = now; }
    void updatePlot() override {}
    void showUndo(bool undo, bool /*canRedo*/) override { canUndo = undo; }

    [[nodiscard]] bool isPlacedByDesktop() const override { return placedByDesktop; }
    [[nodiscard]] Rectangle frame() const override { return place; }
    void setFrameOrigin(const Point& origin) override {
        place.x = origin.x;
        place.y = origin.y;
        _journal.emplace_back("frame");
    }
    void makeKeyAndOrderFront() override {
        isShown = true;
        _journal.emplace_back("panel shown");
    }
    void orderOut() override { isShown = false; }
    [[nodiscard]] bool isOrderedIn() const override { return isShown; }
    [[nodiscard]] bool isOnActiveWorkspace() const override { return true; }
    [[nodiscard]] PanelSliderGeometry masterSliderOfSelectedTab() const override { return master; }
    void showRemoteConfiguration(bool /*isOn*/) override {}
    void _setAdvancedPanel(bool advanced) override {
        _journal.emplace_back(advanced ? "advanced" : "compact");
    }
    void _setDarkTheme(bool dark) override { _journal.emplace_back(dark ? "dark" : "light"); }
    void showChannelStrip(bool /*isShown*/) override {}
    void showFirstHint(bool isHintShown) override { hasHint = isHintShown; }
    void showTab(int index) override { _journal.push_back("tab " + std::to_string(index)); }
    void focusMasterOfSelectedTab() override { _journal.emplace_back("master focused"); }
    void observeFirstResponder() override { _journal.emplace_back("focus observed"); }

    PanelValues shown;
    bool enabled = true;
    bool correction = false;
    bool canUndo = false;
    bool hasHint = false;
    bool placedByDesktop = false;
    PanelSubject subject;
    Rectangle place{100, 100, 320, 470};
    bool isShown = false;
    PanelSliderGeometry master{.frame = {60, 64, 200, 24}};

 private:
    Journal& _journal;
};

/// Dialogs that the test answers immediately.
class ScriptedDialogs final : public FileDialogs {
 public:
    void chooseFileToOpen(Chosen chosen) override { chosen(file); }
    void chooseFileToSave(SettingsFormat proposed, ChosenWithFormat chosen) override {
        whileUp();
        chosen(file, format.value_or(proposed));
    }
    void choosePresetName(const std::vector<std::string>& /*names*/, NameChosen chosen) override {
        chosen(presetName);
    }
    void alert(const std::string& title, const std::string& /*message*/,
               const std::vector<std::string>& /*arguments*/) override {
        alerts.push_back(title);
    }

    std::string presetName;
    std::filesystem::path file;
    std::optional<SettingsFormat> format;
    /// Runs before the user has chosen where to save.
    std::function<void()> whileUp = [] {};
    std::vector<std::string> alerts;
};

/// Records requests for targets.
class RecordedTargets final : public TargetWindows {
 public:
    void openTargetWindow() override {
        shown.emplace_back("floating");
        floating = TargetKind::Color;
    }
    void openTargetWindow(TargetKind kind) override {
        shown.push_back("floating " + std::to_string(static_cast<int>(kind)));
        floating = kind;
    }
    void coverDisplay(DisplayID display, TargetKind kind, std::function<void()> closed) override {
        shown.push_back("display " + std::to_string(display) + " " +
                        std::to_string(static_cast<int>(kind)));
        covers[display] = kind;
        if (closed) {
            closings.push_back(std::move(closed));
        }
    }
    void uncoverDisplay(DisplayID display) override {
        covers.erase(display);
        for (const auto& closed : std::exchange(closings, {})) {
            closed();
        }
    }
    [[nodiscard]] std::optional<TargetKind> visibleCover(DisplayID display) const override {
        const auto cover = covers.find(display);
        return cover == covers.end() ? std::nullopt : std::optional(cover->second);
    }
    [[nodiscard]] TargetKind coverKind(DisplayID display) const override {
        return visibleCover(display).value_or(TargetKind::Color);
    }
    [[nodiscard]] std::optional<TargetKind> floatingTarget() const override { return floating; }
    void setHintsShown(bool /*areShown*/) override {}
    void displaysChanged() override {}
    void identify(const std::vector<NamedDisplay>& displays) override {
        for (const NamedDisplay& each : displays) {
            shown.push_back(each.name);
        }
    }
    void saveFrame() override {}

    std::optional<TargetKind> floating;

    std::vector<std::string> shown;
    std::map<DisplayID, TargetKind> covers;
    std::vector<std::function<void()>> closings;
};

/// Records calls to a display service.
class RecordedService final : public SimulatedDisplayService {
 public:
    RecordedService(SimulatedDesk& desk, Journal& journal, RecordedDesktop& desktop,
                    const DisplayDescription& barred)
        : SimulatedDisplayService(desk), _journal(journal), _desktop(desktop), _barred(barred) {}
    [[nodiscard]] DisplayDescription description(DisplayID display) override {
        return _barred.obstacle.empty() ? SimulatedDisplayService::description(display) : _barred;
    }
    void warpPointer(const Point& point) override { _desktop.pointer = point; }
    void setTransferTable(DisplayID display, const GammaTable& table) override {
        _journal.push_back("table " + std::to_string(display));
        SimulatedDisplayService::setTransferTable(display, table);
    }
    [[nodiscard]] std::unique_ptr<Subscription> registerReconfigurationCallback(
        ReconfigurationCallback callback) override {
        _journal.emplace_back("displays observed");
        return SimulatedDisplayService::registerReconfigurationCallback(std::move(callback));
    }

 private:
    Journal& _journal;
    RecordedDesktop& _desktop;
    const DisplayDescription& _barred;
};

/// A simulated desk with two displays side by side, 1000 by 800 each, and one running program at a
/// time.
class ControllerBench {
 public:
    ControllerBench();

    /// Starts a program; a running one is killed and loses unsaved data.
    void launch();
    /// The same, and lets it settle.
    void launchAndSettle() {
        launch();
        loop.runPosted();
    }
    [[nodiscard]] TQController& controller() { return *_program->controller; }
    /// Moves a slider as a user does.
    void edit(PanelSlider slider, float value, bool isLinked = false);
    /// Changes a preference as another program would, and notifies the program.
    void set(std::string_view key, PropertyValue value) {
        preferences.setValue(key, std::move(value));
        loop.runPosted();
    }
    void movePanel(double x) {
        panel.place.x = x;
        controller().panelMoved();
    }
    /// The first entry of a display's red hardware ramp.
    [[nodiscard]] int firstEntry(DisplayID display) {
        return desk.find(display)->ramp.channel(0).front();
    }
    /// A display's curve and its red black level, by which tests identify it.
    [[nodiscard]] std::shared_ptr<KVGammaCurve> curve(DisplayID display) {
        return _program->registry->screenWithDirectDisplayID(display)->gammaCurve();
    }
    [[nodiscard]] float red(DisplayID display) { return curve(display)->blackPoint()->redValue(); }
    /// Writes another program's ramp to the left display; returns how long it stays, at most 10 s.
    [[nodiscard]] std::chrono::milliseconds timeToReapply();

    static SimulatedDisplay makeDisplay(DisplayID display, double x);
    [[nodiscard]] static std::string referenceID(DisplayID display) {
        return std::to_string(100 + display) + "-0-0";
    }

    Journal journal;
    SimulatedDesk desk;
    /// Said of every display, once it names an obstacle.
    DisplayDescription barred;
    ManualRunLoop loop;
    PlainStore preferences;
    RecordedDesktop desktop{journal};
    RecordedPanel panel{journal};
    ScriptedDialogs dialogs;
    RecordedTargets targets;
    ScriptedAlerts alerts;
    ScriptedHotKeys hotKeys;
    Wire network;
    std::vector<std::string> log;
    std::filesystem::path presetFolder;
    bool hasEnded = false;

 private:
    struct Program {
        std::unique_ptr<RecordedService> service;
        std::unique_ptr<ScreenRegistry> registry;
        ReconfigurationCounter counter;
        std::unique_ptr<DDHotKeyCenter> center;
        MachineGuid guid;
        std::unique_ptr<TQController> controller;
    };

    std::optional<Program> _program;
};

}  // namespace tonquil
