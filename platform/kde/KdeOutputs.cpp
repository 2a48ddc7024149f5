// SPDX-License-Identifier: MIT
#include "platform/kde/KdeOutputs.h"

#include <algorithm>
#include <utility>

namespace tonquil {

struct KdeOutputs::Events {
    static void global(void* data, wl_registry*, std::uint32_t number, const char* interface,
                       std::uint32_t version) {
        static_cast<KdeOutputs*>(data)->announced(number, interface, version);
    }
    static void globalRemove(void* data, wl_registry*, std::uint32_t number) {
        static_cast<KdeOutputs*>(data)->gone(number);
    }
    static constexpr wl_registry_listener all{.global = global, .global_remove = globalRemove};
};

KdeOutputs::KdeOutputs(const WaylandConnection& connection, std::function<void()> changed)
    : _changed(std::move(changed)), _registry(wl_display_get_registry(connection.get())) {
    wl_registry_add_listener(_registry.get(), &Events::all, this);
}

void KdeOutputs::announced(std::uint32_t number, const std::string& interface,
                           std::uint32_t version) {
    if (interface == kde_output_management_v2_interface.name && !_management) {
        constexpr std::uint32_t newestKnown = 8;
        _management.reset(static_cast<kde_output_management_v2*>(
            wl_registry_bind(_registry.get(), number, &kde_output_management_v2_interface,
                             std::min(version, newestKnown))));
    } else if (interface == kde_output_device_v2_interface.name) {
        _all.push_back(std::make_unique<KdeOutput>(_registry.get(), number, version, _changed));
        _changed();
    }
}

// What has been bound stays: the compositor may be announcing modes of it still. Where nobody takes
// these, their numbers are missing when the next mode comes, and that ends the whole connection.
void KdeOutputs::gone(std::uint32_t number) {
    const auto output =
        std::ranges::find_if(_all, [=](const auto& each) { return each->number() == number; });
    if (output != _all.end()) {
        _gone.push_back(std::move(*output));
        _all.erase(output);
        _changed();
    }
}

bool KdeOutputs::takeProfiles() const {
    return _management && kde_output_management_v2_get_version(_management.get()) >=
                              KDE_OUTPUT_CONFIGURATION_V2_SET_ICC_PROFILE_PATH_SINCE_VERSION;
}

}  // namespace tonquil
