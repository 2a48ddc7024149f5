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

using Curves = std::variant<OneCurve, CurvesByDisplay>;

/// Puts the curves on the displays that are meant and that are there.
Result<void> applyOnce(const Curves& curves, const Arguments& arguments, DisplayService& service,
                       ScreenRegistry& registry, const CommandEnvironment& environment) {
    DisplayBatch batch(service);
    registry.updateScreenList();
    const auto screens = selectScreens(registry, service, arguments.displays, environment.notes);
    if (!screens) {
        return tl::unexpected(screens.error());
    }
    if (const auto ending = endingWithItsProgram(*screens, service); ending && !arguments.hold) {
        return problem(*ending +
                       ": here a correction ends with the program that set it; use \"tonquilctl "
                       "apply --hold\", which stays, or tonquil.");
    }
    const auto assignments =
        std::visit([&](const auto& source) { return assign(source, *screens); }, curves);
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

/// Keeps the curves on the displays, whichever come and go, until the run loop is stopped.
Result<void> hold(const Curves& curves, const Arguments& arguments, DisplayService& service,
                  ScreenRegistry& registry, const CommandEnvironment& environment) {
    RunLoop& loop = environment.remote.runLoop;
    bool isApplicationDue = false;
    bool isCalibrationOld = false;
    // One change is told once per display, and ends for all of them at once.
    const auto subscription =
        service.registerReconfigurationCallback([&](DisplayID, ReconfigurationFlags flags) {
            isCalibrationOld = isCalibrationOld || flags == calibrationChanged;
            if (flags != beginConfiguration && !std::exchange(isApplicationDue, true)) {
                loop.post([&] {
                    isApplicationDue = false;
                    if (std::exchange(isCalibrationOld, false)) {
                        for (const auto& screen : registry.screens()) {
                            screen->readBaseGamma();
                        }
                    }
                    // With nothing to correct for the moment, the next change may bring it.
                    static_cast<void>(applyOnce(curves, arguments, service, registry, environment));
                });
            }
        });
    const std::string notes = environment.notes;
    if (!environment.areDisplaysLost()) {
        environment.remote.run();
    }
    environment.notes = notes;
    if (environment.areDisplaysLost()) {
        return problem("The display server has gone.");
    }
    std::vector<DisplayID> displays;
    for (const auto& screen : registry.screens()) {
        if (screen->gammaCurve()) {
            displays.push_back(screen->directDisplayID());
        }
    }
    service.restoreSystemCalibration(displays);
    return {};
}

}  // namespace

Result<void> runApply(const Arguments& arguments, const CommandEnvironment& environment) {
    const auto curves = readCurves(arguments);
    if (!curves) {
        return tl::unexpected(curves.error());
    }
    const auto service =
        arguments.hold ? environment.openDisplaysToHold() : environment.openDisplays();
    if (!service) {
        return tl::unexpected(service.error());
    }
    ScreenRegistry registry(**service);
    auto applied = applyOnce(*curves, arguments, **service, registry, environment);
    return applied && arguments.hold ? hold(*curves, arguments, **service, registry, environment)
                                     : applied;
}

}  // namespace tonquil
