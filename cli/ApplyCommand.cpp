// SPDX-License-Identifier: MIT
#include <utility>
#include <vector>

#include "cli/Commands.h"
#include "cli/CurveSource.h"
#include "cli/ScreenSelection.h"
#include "model/TQExtendedGammaCurve.h"

namespace tonquil {

namespace {

using Assignment = std::pair<ScreenRegistry::ScreenPointer, KVScreen::CurvePointer>;

/// Assigns each screen its curve: the entry under the first of its keys that exists.
Result<std::vector<Assignment>> assign(const CurvesByDisplay& curves,
                                       const ScreenRegistry::Screens& screens) {
    std::vector<Assignment> assignments;
    for (const auto& screen : screens) {
        for (const std::string& key : screen->keys()) {
            const PropertyValue* dictionary = entry(curves.screens, key);
            if (dictionary != nullptr && dictionary->is_object()) {
                assignments.emplace_back(
                    screen, TQExtendedGammaCurve::gammaCurveWithDictionary(*dictionary));
                break;
            }
        }
    }
    if (assignments.empty()) {
        return problem(
            "Settings from this file apply to different screens than those available on this "
            "computer.");
    }
    return assignments;
}

Result<std::vector<Assignment>> assign(const OneCurve& curve,
                                       const ScreenRegistry::Screens& screens) {
    std::vector<Assignment> assignments;
    for (const auto& screen : screens) {
        assignments.emplace_back(screen, curve);
    }
    return assignments;
}

}  // namespace

Result<void> runApply(const Arguments& arguments, const CommandEnvironment& environment) {
    const auto curves = readCurves(arguments);
    if (!curves) {
        return tl::unexpected(curves.error());
    }
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
    const auto assignments =
        std::visit([&](const auto& source) { return assign(source, *screens); }, *curves);
    if (!assignments) {
        return tl::unexpected(assignments.error());
    }
    for (const auto& [screen, curve] : *assignments) {
        screen->setGammaCurve(curve);
        screen->applyGammaCurve();
    }
    if (!batch.finish()) {
        return problem("Not every display took the correction.", environment.logged);
    }
    return {};
}

}  // namespace tonquil
