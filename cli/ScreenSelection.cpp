// SPDX-License-Identifier: MIT
#include "cli/ScreenSelection.h"

#include <algorithm>

namespace tonquil {

Result<ScreenRegistry::Screens> selectScreens(ScreenRegistry& registry, DisplayService& service,
                                              const std::vector<std::string>& referenceIDs,
                                              std::string& notes) {
    const auto isMeant = [&](const std::string& referenceID) {
        return referenceIDs.empty() || std::find(referenceIDs.begin(), referenceIDs.end(),
                                                 referenceID) != referenceIDs.end();
    };
    for (const std::string& referenceID : referenceIDs) {
        if (!registry.screenWithReferenceID(referenceID)) {
            return problem("No attached display has the reference ID " + referenceID +
                           "; see \"tonquilctl displays\".");
        }
    }
    ScreenRegistry::Screens selected;
    for (const auto& screen : registry.screens()) {
        if (!isMeant(screen->referenceID())) {
            continue;
        }
        const DisplayDescription description = service.description(screen->directDisplayID());
        if (description.obstacle.empty()) {
            selected.push_back(screen);
            continue;
        }
        const std::string obstacle = description.connector + ": " + description.obstacle;
        if (!referenceIDs.empty() || registry.screens().size() == 1) {
            return problem(obstacle);
        }
        notes += "tonquilctl: " + obstacle + "\n";
    }
    if (selected.empty()) {
        return problem(registry.screens().empty() ? "No display is attached."
                                                  : "No attached display can be corrected.");
    }
    return selected;
}

}  // namespace tonquil
