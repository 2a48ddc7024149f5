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

/// A private X server with the dummy driver, on which displays are plugged in and out.
///
/// It has the outputs DUMMY0 to DUMMY15, each with a ramp of 256 entries of its own. DUMMY0 is lit
/// at 1400x1050 and primary from the start. The server picks its own display number, and ends with
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

    /// What DISPLAY is to be, for example ":7".
    [[nodiscard]] const std::string& display() const { return _display; }

    /// Lights an output at one of the server's modes, right of the one plugged in before it.
    [[nodiscard]] Result<void> plug(const std::string& connector, const std::string& mode);
    /// Turns an output off.
    ///
    /// This driver finds an output connected once it has been looked at while lit, and never
    /// disconnected again: whether a display is there shows in whether it is lit, not in that.
    [[nodiscard]] Result<void> unplug(const std::string& connector);
    /// Sets what the server tells of the size of the picture, in millimetres.
    [[nodiscard]] Result<void> setPhysicalSize(const std::string& connector, int widthMillimetres,
                                               int heightMillimetres) const;
    [[nodiscard]] Result<void> setEdid(const std::string& connector,
                                       const std::vector<std::uint8_t>& edid) const;
    /// Sets a property of the root window, for example "_ICC_PROFILE"; no bytes delete it.
    [[nodiscard]] Result<void> setRootProperty(const std::string& name,
                                               const std::vector<std::uint8_t>& bytes) const;
    /// Runs xrandr with these arguments.
    [[nodiscard]] Result<void> xrandr(std::vector<std::string> arguments) const;

    /// Ends the server at once, as a crash would; every later call fails.
    void kill() { _process->kill(); }

    ~XServer();
    XServer(const XServer&) = delete;
    XServer& operator=(const XServer&) = delete;

 private:
    explicit XServer(const Options& options);

    ScratchFolder _folder;
    std::unique_ptr<BackgroundProcess> _process;
    std::string _display;
    /// The lit connectors, in the order of plugging.
    std::vector<std::string> _plugged{"DUMMY0"};
};

}  // namespace tonquil
