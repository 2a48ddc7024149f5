// SPDX-License-Identifier: MIT
#include <vector>

#include "cli/Commands.h"
#include "cli/ScreenSelection.h"

namespace tonquil {

Result<void> runRestore(const Arguments& arguments, const CommandEnvironment& environment) {
    const auto service = environment.openDisplays();
    if (!service) {
        return tl::unexpected(service.error());
    }
    DisplayBatch batch(**service);
    ScreenRegistry registry(**service);
    registry.updateScreenList();
    const auto screens = selectScreens(registry, **service, arguments.displays, environment.notes);
    if (!screens) {
        return tl::unexpected(screens.error());
    }
    if (const auto ending = endingWithItsProgram(*screens, **service)) {
        return problem(*ending +
                       ": here a correction ends with the program that set it; end or switch off "
                       "that program instead.");
    }
    std::vector<DisplayID> displays;
    for (const auto& screen : *screens) {
        displays.push_back(screen->directDisplayID());
    }
    (*service)->restoreSystemCalibration(displays);
    if (!batch.finish()) {
        return problem("Not every display went back to its calibration.", environment.logged);
    }
    return {};
}

}  // namespace tonquil
