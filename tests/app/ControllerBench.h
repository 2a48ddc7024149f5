// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "app/TQController.h"
#include "app/preferences/SettingsKeys.h"
#include "platform/simulated/SimulatedDisplayService.h"
#include "tests/app/DesktopFakes.h"
#include "tests/support/ManualRunLoop.h"

namespace tonquil {

/// A panel without a window.
class RecordedPanel final : public PanelControls, public PanelWindow {
 public:
    explicit RecordedPanel(Journal& journal) : _journal(journal) {}

    [[nodiscard]] PanelValues values() const override { return shown; }
    void setValues(const PanelValues& values) override { shown = values; }
    void revertTyping() override {}
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
    void showTab(int index) override { _journal.push_back("tab " + std::to_string(index)); }
    void focusMasterOfSelectedTab() override { _journal.emplace_back("master focused"); }
    void observeFirstResponder() override { _journal.emplace_back("focus observed"); }

    PanelValues shown;
    bool enabled = true;
    bool correction = false;
    bool canUndo = false;
    PanelSubject subject;
    Rectangle place{100, 100, 320, 470};
    bool isShown = false;
    PanelSliderGeometry master{.frame = {60, 64, 200, 24}};

 private:
    Journal& _journal;
};

/// Preferences in memory, told of as the real ones tell.
class MemoryPreferences final : public PreferencesStore {
 public:
    MemoryPreferences(RunLoop& runLoop, Journal& journal) : _runLoop(runLoop), _journal(journal) {}

    void registerDefaults(PropertyValue defaults) override;
    void setValue(std::string_view key, PropertyValue value) override;
    bool synchronize() override { return isWritable; }
    [[nodiscard]] std::unique_ptr<Subscription> subscribe(std::function<void()> changed) override;

    PropertyValue stored = PropertyValue::object();
    bool isWritable = true;

 private:
    [[nodiscard]] const PropertyValue* valueForKey(std::string_view key) const override;

    RunLoop& _runLoop;
    Journal& _journal;
    PropertyValue _defaults = PropertyValue::object();
    std::function<void()> _changed;
};

class MemoryRecovery final : public CurveRecovery {
 public:
    [[nodiscard]] PropertyValue leftCurves() override { return left; }
    [[nodiscard]] Result<void> keep(const PropertyValue& curves) override {
        left = curves;
        return {};
    }
    void forget() override { left = PropertyValue::object(); }

    PropertyValue left = PropertyValue::object();
};

/// Dialogs in which a test decides at once.
class ScriptedDialogs final : public FileDialogs {
 public:
    void chooseFileToOpen(Chosen chosen) override { chosen(file); }
    void chooseFileToSave(SettingsFormat proposed, ChosenWithFormat chosen) override {
        whileUp();
        chosen(file, format.value_or(proposed));
    }
    void alert(const std::string& title, const std::string& /*message*/,
               const std::vector<std::string>& /*arguments*/) override {
        alerts.push_back(title);
    }

    std::filesystem::path file;
    std::optional<SettingsFormat> format;
    /// What happens before the person has chosen where to save.
    std::function<void()> whileUp = [] {};
    std::vector<std::string> alerts;
};

/// Tells what targets are asked for.
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
        closings.push_back(std::move(closed));
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
    void saveFrame() override {}

    std::optional<TargetKind> floating;

    std::vector<std::string> shown;
    std::map<DisplayID, TargetKind> covers;
    std::vector<std::function<void()>> closings;
};

/// Events that a test makes.
class ScriptedEvents final : public SessionEvents {
 public:
    explicit ScriptedEvents(Journal& journal) : _journal(journal) {}
    void start(Handler handler) override {
        _journal.emplace_back("session observed");
        tell = std::move(handler);
    }
    Handler tell;

 private:
    Journal& _journal;
};

/// Tells what is asked of a display service.
class RecordedService final : public SimulatedDisplayService {
 public:
    RecordedService(SimulatedDesk& desk, Journal& journal, ScriptedWindowSystem& windowSystem)
        : SimulatedDisplayService(desk), _journal(journal), _windowSystem(windowSystem) {}
    void warpPointer(const Point& point) override { _windowSystem.pointer = point; }
    void setTransferTable(DisplayID display, const GammaTable& table) override;
    [[nodiscard]] std::unique_ptr<Subscription> registerReconfigurationCallback(
        ReconfigurationCallback callback) override;

 private:
    Journal& _journal;
    ScriptedWindowSystem& _windowSystem;
};

/// Tells what is asked of a run loop.
class RecordedLoop final : public RunLoop {
 public:
    RecordedLoop(ManualRunLoop& loop, Journal& journal) : _loop(loop), _journal(journal) {}
    [[nodiscard]] Clock::time_point now() const override { return _loop.now(); }
    [[nodiscard]] std::unique_ptr<Handle> callOnce(std::chrono::milliseconds delay,
                                                   Call call) override {
        return _loop.callOnce(delay, std::move(call));
    }
    [[nodiscard]] std::unique_ptr<Handle> callRepeatedly(std::chrono::milliseconds interval,
                                                         Call call) override {
        _journal.push_back("every " + std::to_string(interval.count()) + " ms");
        return _loop.callRepeatedly(interval, std::move(call));
    }
    [[nodiscard]] std::unique_ptr<Handle> watchReadable(int descriptor, Call call) override {
        return _loop.watchReadable(descriptor, std::move(call));
    }
    void post(Call call) override { _loop.post(std::move(call)); }

 private:
    ManualRunLoop& _loop;
    Journal& _journal;
};

/// A desk of two displays side by side, 1000 by 800 each, and one program after the other at it.
class ControllerBench {
 public:
    ControllerBench();

    /// Starts a program, ending without order the one that runs: what was not saved is lost.
    void launch();
    /// The same, and lets it settle.
    void launchAndSettle();
    [[nodiscard]] TQController& controller() { return *_program->controller; }
    /// Moves a slider as a person does.
    void edit(PanelSlider slider, float value, bool isLinked = false);
    /// The first level that a display's red hardware ramp has, in entries.
    [[nodiscard]] int firstEntry(DisplayID display);
    /// The curve that a display has been given.
    [[nodiscard]] std::shared_ptr<KVGammaCurve> curve(DisplayID display);

    static constexpr DisplayID left = 1;
    static constexpr DisplayID right = 2;
    static SimulatedDisplay makeDisplay(DisplayID display, double x);

    Journal journal;
    SimulatedDesk desk;
    ManualRunLoop loop;
    RecordedLoop recordedLoop{loop, journal};
    MemoryPreferences preferences{loop, journal};
    MemoryRecovery recovery;
    RecordedPanel panel{journal};
    ScriptedDialogs dialogs;
    RecordedTargets targets;
    RecordedPresence presence{journal};
    RecordedWindows windows{journal};
    RecordedAlerts alerts;
    ScriptedWindowSystem windowSystem;
    ScriptedPrograms programs;
    ScriptedHotKeys hotKeys;
    ScriptedNetwork network;
    std::vector<std::string> log;
    bool hasEnded = false;

 private:
    [[nodiscard]] std::unique_ptr<TQPlayerServer> openServer();

    struct Program {
        std::unique_ptr<RecordedService> service;
        std::unique_ptr<ScreenRegistry> registry;
        ReconfigurationCounter counter;
        std::unique_ptr<ScriptedEvents> events;
        std::unique_ptr<DDHotKeyCenter> center;
        MachineGuid guid;
        std::unique_ptr<TQController> controller;
    };

 public:
    [[nodiscard]] ScriptedEvents& events() { return *_program->events; }

 private:
    std::optional<Program> _program;
};

}  // namespace tonquil
