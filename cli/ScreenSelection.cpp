// SPDX-License-Identifier: MIT
#include "cli/ScreenSelection.h"

#include <algorithm>

namespace tonquil {

Result<ScreenRegistry::Screens> meantScreens(ScreenRegistry& registry,
                                             const std::vector<std::string>& names) {
    for (const std::string& name : names) {
        if (const auto named = screenNamed(registry, name); !named) {
            return tl::unexpected(named.error());
        }
    }
    ScreenRegistry::Screens meant = registry.screens();
    std::erase_if(meant, [&](const auto& screen) {
        return !names.empty() && std::ranges::none_of(names, [&](const std::string& name) {
            return screen->isNamed(name);
        });
    });
    return meant;
}

Result<ScreenRegistry::Screens> selectScreens(ScreenRegistry& registry, DisplayService& service,
                                              const std::vector<std::string>& names,
                                              std::string& notes) {
    auto meant = meantScreens(registry, names);
    if (!meant) {
        return meant;
    }
    ScreenRegistry::Screens selected;
    for (const auto& screen : *meant) {
        const DisplayDescription description = service.description(screen->directDisplayID());
        if (description.obstacle.empty()) {
            selected.push_back(screen);
            continue;
        }
        const std::string obstacle = description.connector + ": " + description.obstacle;
        if (!names.empty() || registry.screens().size() == 1) {
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

bool endsWithItsProgram(const ScreenRegistry::Screens& screens, DisplayService& service) {
    return std::ranges::any_of(screens, [&](const auto& screen) {
        return !service.description(screen->directDisplayID()).outlivesProgram;
    });
}

Result<ScreenRegistry::ScreenPointer> screenNamed(ScreenRegistry& registry,
                                                  const std::string& name) {
    const auto& screens = registry.screens();
    const auto found =
        std::ranges::find_if(screens, [&](const auto& screen) { return screen->isNamed(name); });
    if (found == screens.end()) {
        return problem("No attached display has the reference ID or the connector " + name +
                       "; see \"tonquilctl displays\".");
    }
    return *found;
}

Result<ScreenRegistry::ScreenPointer> screenOrMain(ScreenRegistry& registry,
                                                   const std::vector<std::string>& names) {
    if (!names.empty()) {
        return screenNamed(registry, names.back());
    }
    if (registry.screens().empty()) {
        return problem("No display is attached.");
    }
    return registry.screens().front();
}

}  // namespace tonquil
