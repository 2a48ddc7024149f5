// SPDX-License-Identifier: MIT
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "cli/Commands.h"
#include "cli/HandOver.h"
#include "cli/ScreenSelection.h"

namespace tonquil {

namespace {

/// Restores the displays that are meant, unless that is left to the Tonquil that runs: see
/// `leaveToTonquil`.
Result<std::optional<std::string>> restore(const Arguments& arguments, DisplayService& service,
                                           const CommandEnvironment& environment) {
    DisplayBatch batch(service);
    ScreenRegistry registry(service);
    registry.updateScreenList();
    const auto meant = meantScreens(registry, arguments.displays);
    if (!meant) {
        return tl::unexpected(meant.error());
    }
    auto left = leaveToTonquil(requestToRestore(*meant, arguments.displays.empty(), service),
                               *meant, service, environment);
    if (!left || *left) {
        return left;
    }
    const auto screens = selectScreens(registry, service, arguments.displays, environment.notes);
    if (!screens) {
        return tl::unexpected(screens.error());
    }
    std::vector<DisplayID> displays;
    for (const auto& screen : *screens) {
        displays.push_back(screen->directDisplayID());
    }
    service.restoreSystemCalibration(displays);
    if (!batch.finish()) {
        return problem("Not every display went back to its calibration.", environment.logged);
    }
    return std::nullopt;
}

}  // namespace

Result<void> runRestore(const Arguments& arguments, const CommandEnvironment& environment) {
    auto service = environment.openDisplays();
    if (!service) {
        return tl::unexpected(service.error());
    }
    const auto restored = restore(arguments, **service, environment);
    if (!restored) {
        return tl::unexpected(restored.error());
    }
    service->reset();
    return handOver(restored->value_or(""), environment);
}

}  // namespace tonquil
