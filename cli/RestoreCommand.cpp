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

/// Restores the displays that are meant. Where a correction ends with its program it restores
/// nothing, and gives the request for the Tonquil that runs.
Result<std::optional<std::string>> restore(const Arguments& arguments, DisplayService& service,
                                           const CommandEnvironment& environment) {
    DisplayBatch batch(service);
    ScreenRegistry registry(service);
    registry.updateScreenList();
    const auto meant = meantScreens(registry, arguments.displays);
    if (!meant) {
        return tl::unexpected(meant.error());
    }
    if (endsWithItsProgram(*meant, service)) {
        return requestToRestore(*meant, arguments.displays.empty(), service);
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
    return *restored ? handOver(**restored, environment) : Result<void>();
}

}  // namespace tonquil
