// SPDX-License-Identifier: MIT
#include "platform/listing/ListedDisplayService.h"

#include <algorithm>

namespace tonquil {

std::vector<DisplayID> ListedDisplayService::onlineDisplays(std::size_t most) {
    catchUp();
    std::vector<DisplayID> online;
    for (const ListedDisplay& display : layout()) {
        if (online.size() < most) {
            online.push_back(display.id);
        }
    }
    return online;
}

std::optional<ListedDisplay> ListedDisplayService::listed(DisplayID display) {
    const auto all = layout();
    const auto found = std::ranges::find_if(
        all, [=](const ListedDisplay& each) { return display == 0 || each.id == display; });
    return found == all.end() ? std::nullopt : std::optional(*found);
}

DisplayID ListedDisplayService::mainDisplay() {
    return listed(0).value_or(ListedDisplay{}).id;
}

DisplayIdentity ListedDisplayService::identity(DisplayID display) {
    return listed(display).value_or(ListedDisplay{}).identity;
}

DisplayDescription ListedDisplayService::description(DisplayID display) {
    const auto found = listed(display);
    if (!found) {
        return {};
    }
    return {.connector = found->connector,
            .productName = found->productName,
            .rampSize = found->rampSize,
            .obstacle = found->obstacle,
            .isTaken = found->isTaken,
            .outlivesProgram = areCorrectionsLasting(),
            .isReadable = false,
            .primaries = found->primaries};
}

Rectangle ListedDisplayService::bounds(DisplayID display) {
    return listed(display).value_or(ListedDisplay{}).bounds;
}

}  // namespace tonquil
