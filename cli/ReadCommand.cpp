// SPDX-License-Identifier: MIT
#include "cli/Commands.h"
#include "cli/ScreenSelection.h"
#include "cli/TableText.h"

namespace tonquil {

Result<void> runRead(const Arguments& arguments, const CommandEnvironment& environment) {
    const auto service = environment.openDisplays();
    if (!service) {
        return tl::unexpected(service.error());
    }
    const DisplayBatch batch(**service);
    ScreenRegistry registry(**service);
    registry.updateScreenList();
    const auto chosen = screenOrMain(registry, arguments.displays);
    if (!chosen) {
        return tl::unexpected(chosen.error());
    }
    const KVScreen* const screen = chosen->get();
    const DisplayDescription description = (*service)->description(screen->directDisplayID());
    if (arguments.hardware && !description.isReadable) {
        return problem(description.connector +
                       ": this desktop does not tell what is on a display's hardware.");
    }
    GammaTable table;
    const std::uint32_t sampleCount =
        arguments.hardware ? (*service)->getHardwareTable(screen->directDisplayID(), table)
                           : screen->getBaseGamma(table);
    if (sampleCount == 0) {
        return problem("The display has no table that could be read.", environment.logged);
    }
    printTable(table, sampleCount, environment.out);
    return {};
}

}  // namespace tonquil
