// SPDX-License-Identifier: MIT
#include "cli/Commands.h"
#include "cli/ScreenSelection.h"
#include "cli/TableText.h"

namespace tonquil {

Result<void> runRead(const Arguments& arguments, DisplayService& service, std::ostream& out) {
    const DisplayBatch batch(service);
    ScreenRegistry registry(service);
    registry.updateScreenList();
    const auto& screens = registry.screens();
    if (screens.empty()) {
        return problem("No display is attached.");
    }
    auto screen = screens.front();
    if (!arguments.displays.empty()) {
        screen = registry.screenWithReferenceID(arguments.displays.back());
        if (!screen) {
            return problem("No attached display has the reference ID " + arguments.displays.back() +
                           "; see \"tonquilctl displays\".");
        }
    }
    GammaTable table;
    const std::uint32_t sampleCount =
        arguments.hardware ? service.getHardwareTable(screen->directDisplayID(), table)
                           : screen->getBaseGamma(table);
    if (sampleCount == 0) {
        return problem(service.description(screen->directDisplayID()).connector +
                       " has no table that could be read.");
    }
    printTable(table, sampleCount, out);
    return {};
}

}  // namespace tonquil
