// SPDX-License-Identifier: MIT
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "cli/Commands.h"
#include "cli/CurveSource.h"
#include "cli/HandOver.h"
#include "cli/ScreenSelection.h"
#include "model/StoredCurve.h"

namespace tonquil {

namespace {

/// Assigns each screen its curve: the entry under the first of its keys that exists.
Result<Assignments> assign(const CurvesByDisplay& curves, const ScreenRegistry::Screens& screens) {
    Assignments assignments;
    for (const auto& screen : screens) {
        for (const std::string& key : screen->keys()) {
            const PropertyValue* dictionary = entry(curves.screens, key);
            if (dictionary != nullptr && dictionary->is_object()) {
                assignments.emplace_back(screen, curveWithDictionary(*dictionary));
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

Result<Assignments> assign(const OneCurve& curve, const ScreenRegistry::Screens& screens) {
    Assignments assignments;
    for (const auto& screen : screens) {
        assignments.emplace_back(screen, curve);
    }
    return assignments;
}

using Curves = std::variant<OneCurve, CurvesByDisplay>;

Result<Assignments> assignAny(const Curves& curves, const ScreenRegistry::Screens& screens) {
    return std::visit([&](const auto& source) { return assign(source, screens); }, curves);
}

/// Puts the curves on the attached displays that are meant, unless they are left to the Tonquil
/// that is running: see `leaveToTonquil`.
Result<std::optional<std::string>> applyOnce(const Curves& curves, const Arguments& arguments,
                                             DisplayService& service, ScreenRegistry& registry,
                                             const CommandEnvironment& environment) {
    DisplayBatch batch(service);
    registry.updateScreenList();
    const auto meant = meantScreens(registry, arguments.displays);
    if (!meant) {
        return tl::unexpected(meant.error());
    }
    if (!arguments.hold && service.isKeptByOneProgram()) {
        // The running Tonquil holds these displays, so what blocks us does not block it.
        auto left = assignAny(curves, *meant).and_then([&](const Assignments& assignments) {
            return leaveToTonquil(requestFor(assignments, service), *meant, service, environment);
        });
        if (!left || *left) {
            return left;
        }
    }
    const auto screens = selectScreens(registry, service, arguments.displays, environment.notes);
    if (!screens) {
        return tl::unexpected(screens.error());
    }
    const auto assignments = assignAny(curves, *screens);
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
    return std::nullopt;
}

/// Keeps the curves on the displays, even as they come and go, until the run loop is stopped.
Result<void> hold(const Curves& curves, const Arguments& arguments, DisplayService& service,
                  ScreenRegistry& registry, const CommandEnvironment& environment) {
    RunLoop& loop = environment.remote.runLoop;
    bool isApplicationDue = false;
    bool areBasesOld = false;
    // One change is told once per display, and ends for all of them at once.
    const auto subscription =
        service.registerReconfigurationCallback([&](DisplayID, ReconfigurationFlags flags) {
            areBasesOld = areBasesOld || (flags & calibrationChanged) != 0;
            if (flags != beginConfiguration && !std::exchange(isApplicationDue, true)) {
                loop.post([&] {
                    isApplicationDue = false;
                    if (std::exchange(areBasesOld, false)) {
                        registry.updateScreenList();
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
            const auto all = screen->displayIDs();
            displays.insert(displays.end(), all.begin(), all.end());
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
    auto service = arguments.hold ? environment.openDisplaysToHold() : environment.openDisplays();
    if (!service) {
        return tl::unexpected(service.error());
    }
    auto registry = std::make_unique<ScreenRegistry>(**service);
    const auto applied = applyOnce(*curves, arguments, **service, *registry, environment);
    if (!applied) {
        return tl::unexpected(applied.error());
    }
    if (arguments.hold) {
        return hold(*curves, arguments, **service, *registry, environment);
    }
    registry.reset();
    service->reset();
    return handOver(applied->value_or(""), environment);
}

}  // namespace tonquil
