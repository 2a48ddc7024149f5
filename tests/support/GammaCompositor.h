// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <thread>

#include "platform/ramp/HardwareRamp.h"
#include "tests/support/FileDescriptor.h"
#include "tests/support/ScratchFolder.h"

struct wl_event_source;
struct wl_display;
struct wl_resource;

namespace tonquil {

/// A Wayland compositor without a picture: outputs that come and go, and their gamma tables, with
/// every answer that real compositors give. It runs in a thread of its own.
class GammaCompositor {
 public:
    /// Instead of a size: never answers.
    static constexpr std::uint32_t silence = 0xFFFFFFFF;

    GammaCompositor();
    ~GammaCompositor();
    GammaCompositor(const GammaCompositor&) = delete;
    GammaCompositor& operator=(const GammaCompositor&) = delete;

    /// What to put into WAYLAND_DISPLAY.
    [[nodiscard]] std::string socket() const { return _folder.path() / "wayland"; }
    /// An output of 1920 by 1080 at (x, 0) whose ramp is said to have `size` entries.
    void plug(const std::string& name, int x, std::uint32_t size = 256);
    void unplug(const std::string& name);
    /// What those are told who ask from now on, and, as a late answer, who holds the output
    /// already.
    void setSize(const std::string& name, std::uint32_t size);
    /// Takes the output away from whoever holds it and from all who ask, or gives it back.
    void setTaken(const std::string& name, bool isTaken);
    /// What is on the hardware: what was set, or a straight line.
    [[nodiscard]] HardwareRamp ramp(const std::string& name);
    [[nodiscard]] bool isHeld(const std::string& name);
    /// Ends at once, with all its connections.
    void die();

    struct Output;

 private:
    struct Requests;
    /// Runs in the compositor's thread and waits for it.
    void call(const std::function<void()>& work);

    ScratchFolder _folder;
    wl_display* _display;
    FileDescriptor _wakeUp;
    wl_event_source* _wakeUpSource = nullptr;
    std::function<void()> _work;
    /// Those that were unplugged stay: clients may still hold them.
    std::multimap<std::string, std::unique_ptr<Output>> _gone;
    std::map<std::string, std::unique_ptr<Output>> _outputs;
    std::thread _thread;
};

}  // namespace tonquil
