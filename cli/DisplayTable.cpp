// SPDX-License-Identifier: MIT
#include "cli/DisplayTable.h"

#include "cli/ScreenSelection.h"

namespace tonquil {

Result<DisplayTable> readTable(TableSource source, const Arguments& arguments,
                               const CommandEnvironment& environment) {
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
    const KVScreen& screen = **chosen;
    DisplayTable read{.display = (*service)->description(screen.directDisplayID()), .table = {}};
    if (source == TableSource::Hardware && !read.display.isReadable) {
        return problem(read.display.connector +
                       ": this desktop does not tell what is on a display's hardware.");
    }
    read.sampleCount = source == TableSource::Hardware
                           ? (*service)->getHardwareTable(screen.directDisplayID(), read.table)
                           : screen.getBaseGamma(read.table);
    if (read.sampleCount < 2) {
        return problem("The display has no table that could be read.", environment.logged);
    }
    return read;
}

}  // namespace tonquil
