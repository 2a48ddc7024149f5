// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <map>
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
/// DUMMY1 at 1280x1024), a window manager, a hand at the pointer, and one person's folders.
class Desk {
 public:
    enum class WindowManager : bool { No, Yes };

    explicit Desk(WindowManager manager = WindowManager::Yes);

    /// Starts the program and waits for its panel. The preferences are laid over those of an
    /// earlier run.
    void start(const PropertyValue& preferences = PropertyValue::object());
    /// The same without waiting.
    void startWithoutPanel(const std::vector<std::string>& arguments);
    /// Runs the program beside the one that runs, to its end.
    [[nodiscard]] ProcessResult runBeside(const std::vector<std::string>& arguments) const;
    [[nodiscard]] BackgroundProcess& program() { return *_program; }
    /// Waits for the program's end and gives its exit status; -1 when it does not end.
    [[nodiscard]] int waitForEnd();

    void xdotool(const std::vector<std::string>& arguments) const;
    /// Whether the panel can be seen.
    [[nodiscard]] bool hasPanel() const;
    /// Where the panel is, in pixels.
    struct Place {
        int x = 0;
        int y = 0;
        int width = 0;
        int height = 0;
    };
    [[nodiscard]] Place panel() const;
    /// All windows of the program that can be seen, an icon in a tray and a menu too.
    [[nodiscard]] std::vector<Place> windows() const;
    void movePanel(int x, int y) const;
    /// Where the pointer is, in pixels.
    struct Point {
        int x = 0;
        int y = 0;
        bool operator==(const Point& other) const = default;
    };
    [[nodiscard]] Point pointer() const;
    void movePointer(const Point& place) const;
    /// Runs another program of the desk to its end and gives its standard output.
    [[nodiscard]] std::string outputOf(const std::vector<std::string>& command) const;
    /// How to run another program on the desk.
    [[nodiscard]] ProcessRequest request(const std::vector<std::string>& command) const;
    /// Drags along a row of the panel (its centre's distance from the upper edge) to the right,
    /// from 40 % of its width to `end` (0 to 1), and lets go.
    void drag(int row, double end) const;
    /// The rows of the panel that a drag can go along, for the font that the tests use.
    static constexpr int masterRow = 76;
    static constexpr int redRow = 156;

    [[nodiscard]] Ramp ramp(const std::string& connector) const;
    void setForeignRamp(const std::string& connector) const;
    [[nodiscard]] XServer& server() { return *_server; }

    [[nodiscard]] std::filesystem::path preferencesFile() const;
    [[nodiscard]] std::filesystem::path recoveryFile() const;
    /// What is stored; an empty dictionary when there is nothing.
    [[nodiscard]] PropertyValue preferences() const;
    /// Changes the stored preferences, as another program would.
    void writePreferences(const PropertyValue& changes) const;

 private:
    std::unique_ptr<XServer> _server;
    std::unique_ptr<RampReader> _reader;
    ScratchFolder _folder;
    std::unique_ptr<BackgroundProcess> _manager;
    std::unique_ptr<BackgroundProcess> _program;
};

/// Asks until the answer is yes, for at most 20 seconds; gives the last answer.
[[nodiscard]] bool eventually(const std::function<bool()>& question);
/// Whether the answer stays yes for a while.
[[nodiscard]] bool stays(const std::function<bool()>& question,
                         std::chrono::milliseconds duration = std::chrono::milliseconds(600));

}  // namespace tonquil
