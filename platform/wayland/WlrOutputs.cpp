// SPDX-License-Identifier: MIT
#include "platform/wayland/WlrOutputs.h"

#include <algorithm>
#include <utility>

namespace tonquil {

struct WlrOutputs::Events {
    static void global(void* data, wl_registry*, std::uint32_t number, const char* interface,
                       std::uint32_t version) {
        static_cast<WlrOutputs*>(data)->announced(number, interface, version);
    }
    static void globalRemove(void* data, wl_registry*, std::uint32_t number) {
        static_cast<WlrOutputs*>(data)->gone(number);
    }
    static constexpr wl_registry_listener all{.global = global, .global_remove = globalRemove};
};

WlrOutputs::WlrOutputs(const WaylandConnection& connection, std::function<void()> changed)
    : _changed(std::move(changed)), _registry(wl_display_get_registry(connection.get())) {
    wl_registry_add_listener(_registry.get(), &Events::all, this);
}

void WlrOutputs::announced(std::uint32_t number, const std::string& interface,
                           std::uint32_t version) {
    // Managers and outputs come in any order.
    if (interface == zwlr_gamma_control_manager_v1_interface.name && !_gammaManager) {
        _gammaManager.reset(static_cast<zwlr_gamma_control_manager_v1*>(wl_registry_bind(
            _registry.get(), number, &zwlr_gamma_control_manager_v1_interface, 1)));
        for (const auto& output : _all) {
            askForGamma(*output);
        }
    } else if (interface == zxdg_output_manager_v1_interface.name && !_xdgManager) {
        constexpr std::uint32_t newestKnown = 3;
        _xdgManager.reset(static_cast<zxdg_output_manager_v1*>(
            wl_registry_bind(_registry.get(), number, &zxdg_output_manager_v1_interface,
                             std::min(version, newestKnown))));
        for (const auto& output : _all) {
            output->wayland.askForPlace(_xdgManager.get());
        }
    } else if (interface == wl_output_interface.name) {
        WlrOutput& output = *_all.emplace_back(
            std::make_unique<WlrOutput>(_registry.get(), number, version, _changed));
        if (_xdgManager) {
            output.wayland.askForPlace(_xdgManager.get());
        }
        if (_gammaManager) {
            askForGamma(output);
        }
        _changed();
    }
}

void WlrOutputs::gone(std::uint32_t number) {
    const auto erased =
        std::erase_if(_all, [=](const auto& output) { return output->wayland.number() == number; });
    if (erased > 0) {
        _changed();
    }
}

bool WlrOutputs::areAnswered() const {
    return std::ranges::all_of(_all, [](const auto& output) {
        return output->wayland.isComplete() &&
               output->gamma.state() != WlrGammaControl::State::Asked;
    });
}

}  // namespace tonquil
