// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/listing/ListedDisplay.h"
#include "platform/wayland/WaylandConnection.h"
#include "platform/wayland/WaylandOutput.h"
#include "platform/wayland/WlrGammaControl.h"

namespace tonquil {

/// An output with its gamma control.
struct WlrOutput {
    WlrOutput(wl_registry* registry, std::uint32_t number, std::uint32_t version,
              const std::function<void()>& changed)
        : wayland(registry, number, version, changed), gamma(changed) {}

    WaylandOutput wayland;
    WlrGammaControl gamma;
    /// Known once the output is complete; its `id` is 0 until then.
    ListedDisplay display;
    /// The ramp to set next.
    HardwareRamp ramp;
    bool isRampUnsent = false;
};

/// The outputs that a compositor announces, as they come and go. The gamma control of each is asked
/// for as soon as it comes.
class WlrOutputs {
 public:
    /// `changed` is called whenever an output comes, goes, or something about it changes.
    WlrOutputs(const WaylandConnection& connection, std::function<void()> changed);
    WlrOutputs(const WlrOutputs&) = delete;
    WlrOutputs& operator=(const WlrOutputs&) = delete;
    ~WlrOutputs() = default;

    /// In the order in which they were announced.
    [[nodiscard]] const std::vector<std::unique_ptr<WlrOutput>>& all() const { return _all; }
    /// Whether the compositor lends gamma tables at all.
    [[nodiscard]] bool isGammaOffered() const { return _gammaManager != nullptr; }
    void askForGamma(WlrOutput& output) {
        output.gamma.ask(_gammaManager.get(), output.wayland.get());
    }
    /// Whether every output is complete and its gamma control answered for.
    [[nodiscard]] bool areAnswered() const;

 private:
    struct Events;
    struct DestroyManager {
        void operator()(zwlr_gamma_control_manager_v1* manager) const {
            zwlr_gamma_control_manager_v1_destroy(manager);
        }
        void operator()(zxdg_output_manager_v1* manager) const {
            zxdg_output_manager_v1_destroy(manager);
        }
    };
    void announced(std::uint32_t number, const std::string& interface, std::uint32_t version);
    void gone(std::uint32_t number);

    std::function<void()> _changed;
    std::unique_ptr<wl_registry, DestroyWaylandProxy> _registry;
    std::unique_ptr<zwlr_gamma_control_manager_v1, DestroyManager> _gammaManager;
    std::unique_ptr<zxdg_output_manager_v1, DestroyManager> _xdgManager;
    std::vector<std::unique_ptr<WlrOutput>> _all;
};

}  // namespace tonquil
