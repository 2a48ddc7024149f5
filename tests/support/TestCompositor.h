// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <thread>

#include "tests/support/FileDescriptor.h"
#include "tests/support/ScratchFolder.h"

struct wl_event_source;
struct wl_display;

namespace tonquil {

/// The frame of a Wayland compositor without a picture, which runs in a thread of its own.
class TestCompositor {
 public:
    TestCompositor(const TestCompositor&) = delete;
    TestCompositor& operator=(const TestCompositor&) = delete;

    /// What to put into WAYLAND_DISPLAY.
    [[nodiscard]] std::string socket() const { return _folder.path() / "wayland"; }
    /// Ends at once, with all its connections.
    void die();

 protected:
    TestCompositor();
    /// `die` must have been called: what runs in the thread belongs to the derived class.
    ~TestCompositor() = default;

    [[nodiscard]] wl_display* display() const { return _display; }
    /// Once all globals are there.
    void start();
    /// Runs in the compositor's thread and waits for it.
    void call(const std::function<void()>& work);

 private:
    ScratchFolder _folder;
    wl_display* _display;
    FileDescriptor _wakeUp;
    wl_event_source* _wakeUpSource = nullptr;
    std::function<void()> _work;
    std::thread _thread;
};

}  // namespace tonquil
