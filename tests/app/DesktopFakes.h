// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cmath>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "app/ControllerSurroundings.h"

namespace tonquil {

/// What happened, in order.
using Journal = std::vector<std::string>;

/// A desktop without windows: records what it is asked to show, and answers as the test says.
class RecordedDesktop final : public DesktopPresence,
                              public ProgramWindows,
                              public WindowSystem,
                              public InstalledPrograms,
                              public SessionEvents,
                              public CurveRecovery {
 public:
    explicit RecordedDesktop(Journal& journal) : _journal(journal) {}

    void showStatusItem(bool isOn) override { note(isOn ? "status item" : "no status item"); }
    void setStatusItemActive(bool isOn) override {
        note(isOn ? "status active" : "status inactive");
    }
    void setInTaskBar(bool isThere) override { note(isThere ? "in task bar" : "not in task bar"); }
    void showRemoteConfiguration(bool isOn) override { isRemoteShown = isOn; }

    void setAboutBackground(double /*red*/, double green, double /*blue*/) override {
        note("about " + std::to_string(std::lround(green * 255)));
    }
    void openPreferences() override { _hasPreferences = true; }
    [[nodiscard]] bool isPreferencesWindowLoaded() const override { return _hasPreferences; }
    [[nodiscard]] bool isPreferencesWindowShown() const override { return _hasPreferences; }
    void openAboutBox() override {}
    void openAddress(std::string_view /*key*/) override {}
    void showHotKeyProblem(HotKeyRole role, const std::string& sentence) override {
        problems[role] = sentence;
    }
    void showRemoteProblem(const std::string& sentence) override { remoteProblem = sentence; }
    void saveFrames() override {}

    void keepOnAllWorkspaces(WindowID /*window*/) override {}
    void bringToActiveWorkspace(WindowID /*window*/) override {}
    void activate(WindowID /*window*/) override {}
    void skipTaskbar(WindowID /*window*/, bool /*skip*/) override {}
    void keepProportions(WindowID /*window*/, std::uint32_t /*width*/,
                         std::uint32_t /*height*/) override {}
    [[nodiscard]] bool isOnActiveWorkspace(WindowID /*window*/) const override { return true; }
    [[nodiscard]] std::optional<Point> pointerLocation() const override { return pointer; }
    [[nodiscard]] bool isCompositing() const override { return false; }
    [[nodiscard]] bool hasWindowManager() const override { return false; }

    [[nodiscard]] std::optional<InstalledProgram> firstInstalled(
        std::span<const std::string_view> candidates) const override {
        return std::ranges::find(candidates, installed) == candidates.end()
                   ? std::nullopt
                   : std::optional(InstalledProgram{.name = "Dusk", .icon = "dusk"});
    }

    void start(Handler handler) override {
        note("session observed");
        tell = std::move(handler);
    }

    [[nodiscard]] PropertyValue leftCurves() override { return recovery; }
    void keep(PropertyValue curves) override { recovery = std::move(curves); }
    void forget() override { recovery = PropertyValue::object(); }

    bool isRemoteShown = false;
    std::map<HotKeyRole, std::string> problems;
    std::string remoteProblem;
    std::optional<Point> pointer = Point{500, 400};
    /// The desktop file of the only installed program.
    std::string installed;
    /// Triggers a session event.
    Handler tell;
    /// The curves in the recovery file.
    PropertyValue recovery = PropertyValue::object();

 private:
    void note(std::string_view line) { _journal.emplace_back(line); }

    Journal& _journal;
    bool _hasPreferences = false;
};

/// Hot keys that a test presses.
class ScriptedHotKeys final : public HotKeyService {
 public:
    [[nodiscard]] bool areKeysChosenByDesktop() const override { return isDesktop; }
    void setHandlers(Handler pressed, Handler released) override {
        _pressed = std::move(pressed);
        _released = std::move(released);
    }
    [[nodiscard]] Result<HotKeyHandle> registerHotKey(std::uint16_t keyCode,
                                                      HotKeyServiceMask /*modifiers*/,
                                                      std::uint32_t id,
                                                      const std::string& /*action*/) override {
        ++registrations;
        if (refused.contains(keyCode)) {
            return tl::unexpected(Problem{.sentence = "Another program holds it.", .detail = {}});
        }
        ids[keyCode] = id;
        return HotKeyHandle{id};
    }
    void unregisterHotKey(HotKeyHandle handle) override {
        std::erase_if(ids, [handle](const auto& each) { return each.second == handle; });
    }
    void press(std::uint16_t keyCode) { _pressed({.id = ids.at(keyCode), .timestamp = time}); }
    void release(std::uint16_t keyCode) { _released({.id = ids.at(keyCode), .timestamp = time}); }

    /// By key code.
    std::map<std::uint16_t, std::uint32_t> ids;
    std::set<std::uint16_t> refused;
    bool isDesktop = false;
    int registrations = 0;
    /// The key events' timestamp, independent of the run loop's clock.
    std::chrono::milliseconds time{0};

 private:
    Handler _pressed;
    Handler _released;
};

}  // namespace tonquil
