// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "tests/support/ProcessRunner.h"
#include "tests/support/RampReader.h"
#include "tests/support/ScratchFolder.h"
#include "tests/support/XServer.h"
#include "values/PropertyValue.h"

namespace tonquil {

/// A desk for the real program: an X server with two displays side by side (DUMMY0 at 1400x1050,
/// DUMMY1 at 1280x1024), a window manager, pointer input, and one user's folders.
class Desk {
 public:
    explicit Desk(bool hasWindowManager = true);

    /// Starts the program and waits for its panel. The preferences are added to those of an earlier
    /// run; by default the panel is on the left display.
    void start(const PropertyValue& preferences = PropertyValue::object());
    /// The same without waiting, with the preferences as they are.
    void startWithoutPanel();
    /// Runs a second instance of the program, which must succeed.
    void request(const std::string& argument) const;
    [[nodiscard]] BackgroundProcess& program() { return *_program; }
    /// Waits for the program to end and returns its exit status; -1 if it does not end.
    [[nodiscard]] int waitForEnd();

    /// Runs a program on the desk to its end.
    [[nodiscard]] ProcessResult run(const std::vector<std::string>& command) const;
    /// Runs a program on the desk until the returned object is destroyed.
    [[nodiscard]] std::unique_ptr<BackgroundProcess> begin(
        const std::vector<std::string>& command) const;
    void xdotool(std::vector<std::string> arguments) const;

    /// A window's rectangle, in pixels; empty for a missing window.
    struct Place {
        int x = 0;
        int y = 0;
        int width = 0;
        int height = 0;
        bool operator==(const Place& other) const = default;
    };
    [[nodiscard]] Place panel() const;
    [[nodiscard]] bool hasPanel() const { return panel().width > 0; }
    /// The windows that can be seen and that xdotool finds by this; all of the program, an icon in
    /// a tray and a menu too, unless told otherwise.
    [[nodiscard]] std::vector<Place> windows(const char* by = "--class",
                                             const char* pattern = "^tonquil$") const;
    [[nodiscard]] bool hasWindow(const Place& place) const;
    /// Starts the bus on which a program that is started later reports its controls.
    void startSessionBus();
    /// Waits for a control, found as assistive technologies do, wherever the fonts and the
    /// layout put it.
    [[nodiscard]] Place control(const std::string& role, const std::string& name) const;
    void clickControl(const std::string& role, const std::string& name) const;
    /// The pointer's position; of size 0.
    [[nodiscard]] Place pointer() const;
    void movePointer(int x, int y) const;
    void click(int x, int y, const char* button = "1") const;
    /// Drags along a row of the panel (its centre's distance from the upper edge) to the right,
    /// from 40 % of its width to `end` (0 to 1), and releases.
    void drag(int row, double end) const;
    /// The rows of the panel that can be dragged along, for the tests' font.
    static constexpr int masterRow = 76;
    static constexpr int redRow = 156;
    /// Corrects a display below the panel by dragging the master; returns its ramp once the whole
    /// drag has arrived.
    // NOLINTNEXTLINE(modernize-use-nodiscard): called for what it does as well.
    Ramp correct(const std::string& connector = "DUMMY0", double end = 0.6) const;

    [[nodiscard]] Ramp ramp(const std::string& connector = "DUMMY0") const;
    [[nodiscard]] XServer& server() { return *_server; }

    [[nodiscard]] std::filesystem::path folder() const { return _folder.path(); }
    [[nodiscard]] std::filesystem::path recoveryFile() const;
    /// The stored preferences; an empty dictionary if there are none.
    [[nodiscard]] PropertyValue preferences() const;
    /// Changes the stored preferences, as another program would.
    void writePreferences(const PropertyValue& changes) const;

 private:
    [[nodiscard]] ProcessRequest requestFor(const std::vector<std::string>& command) const;

    std::unique_ptr<XServer> _server = XServer::start().value();
    RampReader _reader = RampReader::connect(_server->display()).value();
    ScratchFolder _folder;
    std::unique_ptr<BackgroundProcess> _manager;
    std::unique_ptr<BackgroundProcess> _session;
    std::unique_ptr<BackgroundProcess> _program;
};

/// Polls until the answer is yes, for at most 20 seconds; returns the last answer.
[[nodiscard]] bool eventually(const std::function<bool()>& question);
/// Whether the answer stays yes for a while.
[[nodiscard]] bool stays(const std::function<bool()>& question,
                         std::chrono::milliseconds duration = std::chrono::milliseconds(600));

}  // namespace tonquil
