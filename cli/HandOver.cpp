// SPDX-License-Identifier: MIT
#include "cli/HandOver.h"

#include <memory>

#include "cli/ScreenSelection.h"
#include "model/TQExtendedGammaCurve.h"
#include "screens/HandedCurves.h"

namespace tonquil {

namespace {

std::string textOf(const HandedCurves& curves) {
    return std::string(handedCurvesWord) + textFromHandedCurves(curves) + '\n';
}

std::string connectorOf(const KVScreen& screen, DisplayService& service) {
    return service.description(screen.directDisplayID()).connector;
}

}  // namespace

std::string requestFor(const Assignments& assignments, DisplayService& service) {
    HandedCurves curves;
    for (const auto& [screen, curve] : assignments) {
        curves[connectorOf(*screen, service)] = curve;
    }
    return textOf(curves);
}

std::string requestToRestore(const ScreenRegistry::Screens& screens, bool areAll,
                             DisplayService& service) {
    if (areAll) {
        return std::string(switchOffWord) + '\n';
    }
    HandedCurves neutral;
    for (const auto& screen : screens) {
        neutral[connectorOf(*screen, service)] = std::make_shared<TQExtendedGammaCurve>();
    }
    return textOf(neutral);
}

Result<std::optional<std::string>> leaveToTonquil(std::string request,
                                                  const ScreenRegistry::Screens& screens,
                                                  DisplayService& service,
                                                  const CommandEnvironment& environment) {
    if (!service.isKeptByOneProgram()) {
        return std::nullopt;
    }
    if (endsWithItsProgram(screens, service)) {
        return request;
    }
    const auto handed = environment.handOver(request);
    if (!handed) {
        return std::nullopt;
    }
    return handed->map([] { return std::optional<std::string>(""); });
}

Result<void> handOver(const std::string& request, const CommandEnvironment& environment) {
    if (request.empty()) {
        return {};
    }
    if (auto handed = environment.handOver(request)) {
        return std::move(*handed);
    }
    return problem(
        "Here a correction ends with the program that set it, and tonquil, which could keep one, "
        "does not run; \"tonquilctl apply --hold\" stays to keep it.");
}

}  // namespace tonquil
