// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "foundation/Problem.h"
#include "tests/support/ProcessRunner.h"
#include "tests/support/ScratchFolder.h"

namespace tonquil {

/// A private X server with the dummy driver, on which displays can be plugged in and unplugged.
///
/// It has the outputs DUMMY0 to DUMMY15, each with its own ramp of 256 entries. DUMMY0 is active at
/// 1400x1050 and primary from the start. The server picks its own display number, and ends with
/// this object or with the program, whichever is first.
class XServer {
 public:
    struct Options {
        /// Added to the server's command line, for example {"-extension", "RANDR"}.
        std::vector<std::string> arguments = {};
        /// Starts Xvfb instead: one output named "screen", at 1280x1024.
        bool framebufferOnly = false;
    };

    [[nodiscard]] static Result<std::unique_ptr<XServer>> start(const Options& options);
    [[nodiscard]] static Result<std::unique_ptr<XServer>> start() { return start(Options{}); }

    /// The value for DISPLAY, for example ":7".
    [[nodiscard]] const std::string& display() const { return _display; }

    /// Activates an output in one of the server's modes, right of the one plugged in before it.
    [[nodiscard]] Result<void> plug(const std::string& connector, const std::string& mode);
    /// Turns an output off.
    ///
    /// This driver reports an output as connected once it has been queried while active, and never
    /// as disconnected again: what shows whether a display is there is its being active.
    [[nodiscard]] Result<void> unplug(const std::string& connector);
    /// Sets the physical size that the server reports, in millimetres.
    [[nodiscard]] Result<void> setPhysicalSize(const std::string& connector, int widthMillimetres,
                                               int heightMillimetres) const;
    [[nodiscard]] Result<void> setEdid(const std::string& connector,
                                       const std::vector<std::uint8_t>& edid) const;
    /// Sets a property of the root window, for example "_ICC_PROFILE"; no bytes delete it.
    [[nodiscard]] Result<void> setRootProperty(const std::string& name,
                                               const std::vector<std::uint8_t>& bytes) const;
    /// Runs xrandr with these arguments.
    [[nodiscard]] Result<void> xrandr(std::vector<std::string> arguments) const;

    /// Kills the server at once, like a crash; every later call fails.
    void kill() { _process->kill(); }

    ~XServer();
    XServer(const XServer&) = delete;
    XServer& operator=(const XServer&) = delete;

 private:
    explicit XServer(const Options& options);

    ScratchFolder _folder;
    std::unique_ptr<BackgroundProcess> _process;
    std::string _display;
    /// The active connectors, in the order of plugging.
    std::vector<std::string> _plugged{"DUMMY0"};
};

}  // namespace tonquil
