// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>

#include "platform/ramp/HardwareRamp.h"
#include "tests/support/TestCompositor.h"

namespace tonquil {

/// A Wayland compositor without a picture: outputs that come and go, and their gamma tables, with
/// every answer that real compositors give.
class GammaCompositor : public TestCompositor {
 public:
    /// Instead of a size: never answers.
    static constexpr std::uint32_t silence = 0xFFFFFFFF;

    GammaCompositor();
    ~GammaCompositor();
    GammaCompositor(const GammaCompositor&) = delete;
    GammaCompositor& operator=(const GammaCompositor&) = delete;

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

    struct Output;

 private:
    struct Requests;

    /// Those that were unplugged stay: clients may still hold them.
    std::multimap<std::string, std::unique_ptr<Output>> _gone;
    std::map<std::string, std::unique_ptr<Output>> _outputs;
};

}  // namespace tonquil
