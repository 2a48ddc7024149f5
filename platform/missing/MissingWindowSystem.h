// SPDX-License-Identifier: MIT
#pragma once

#include "app/panel/WindowSystem.h"

namespace tonquil {

/// Used where the window system offers nothing beyond what Qt does.
class MissingWindowSystem final : public WindowSystem {
 public:
    /// A Wayland compositor always blends windows, and moves them.
    explicit MissingWindowSystem(bool isWayland = false) : _isWayland(isWayland) {}

    void keepOnAllWorkspaces(WindowID /*window*/) override {}
    void bringToActiveWorkspace(WindowID /*window*/) override {}
    void activate(WindowID /*window*/) override {}
    void skipTaskbar(WindowID /*window*/, bool /*skip*/) override {}
    void keepProportions(WindowID /*window*/, std::uint32_t /*width*/,
                         std::uint32_t /*height*/) override {}
    [[nodiscard]] bool isOnActiveWorkspace(WindowID /*window*/) const override { return true; }
    [[nodiscard]] std::optional<Point> pointerLocation() const override { return std::nullopt; }
    [[nodiscard]] bool isCompositing() const override { return _isWayland; }
    [[nodiscard]] bool hasWindowManager() const override { return _isWayland; }

 private:
    bool _isWayland;
};

}  // namespace tonquil
