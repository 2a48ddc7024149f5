// SPDX-License-Identifier: MIT
#include "app/remote/RemoteDisplays.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "model/CurveFit.h"
#include "model/KVTableGammaCurve.h"
#include "model/TQExtendedGammaCurve.h"

namespace tonquil {

namespace {

constexpr std::string_view colorTargets = "colorTargets";
constexpr std::string_view grayscaleTargets = "grayscaleTargets";
constexpr std::string_view transparent = "transparent";

// Normal curve values are a few units at most. Beyond this limit a table has only zeros and ones,
// and infinity could not be written into an announce.
constexpr float largestMagnitude = 1000;

std::string_view contentOf(TargetKind kind) {
    return kind == TargetKind::Grayscale ? grayscaleTargets : colorTargets;
}

bool isUsable(const TQExtendedGammaCurve& curve) {
    const auto isInReach = [](float value) { return std::abs(value) <= largestMagnitude; };
    const auto isPointInReach = [&](const auto& point) {
        return isInReach(point->redValue()) && isInReach(point->greenValue()) &&
               isInReach(point->blueValue());
    };
    return isInReach(curve.masterBlackCorrection()) && isInReach(curve.masterMiddleCorrection()) &&
           isInReach(curve.masterWhiteCorrection()) && isPointInReach(curve.blackPoint()) &&
           isPointInReach(curve.middlePoint()) && isPointInReach(curve.whitePoint());
}

std::shared_ptr<KVTableGammaCurve> tableOf(const KVScreen& screen) {
    return std::dynamic_pointer_cast<KVTableGammaCurve>(screen.gammaCurve());
}

/// The display's curve in network format; of a table, which has no such format, the curve that
/// comes closest to it.
PropertyValue compactArrayOf(const KVScreen& screen) {
    if (const auto table = tableOf(screen)) {
        return fitCurve(table->table()).curve->gammaCurveCompactArray();
    }
    const auto curve = std::dynamic_pointer_cast<TQExtendedGammaCurve>(screen.gammaCurve());
    return curve ? curve->gammaCurveCompactArray() : PropertyValue();
}

}  // namespace

RemoteDisplays::RemoteDisplays(ScreenRegistry& registry, TargetWindows& targets, RunLoop& runLoop,
                               const Log& log, Reactions reactions)
    : _registry(registry),
      _targets(targets),
      _runLoop(runLoop),
      _log(log),
      _refusalLog(log, "further curves from the network were not taken"),
      _reactions(std::move(reactions)),
      _remoteTargets({.registry = registry,
                      .targets = targets,
                      .runLoop = runLoop,
                      .closed = _reactions.targetClosed,
                      .log = log}),
      _orders(runLoop, [this](const std::string& referenceID, const RemoteOrder& order) {
          carryOut(referenceID, order);
      }) {}

std::vector<std::string> RemoteDisplays::screensForPlayerServer(TQPlayerServer& /*server*/) {
    std::vector<std::string> referenceIDs;
    for (const auto& screen : _registry.screens()) {
        referenceIDs.push_back(screen->referenceID());
    }
    return referenceIDs;
}

PropertyValue RemoteDisplays::playerServerInfoForScreen(TQPlayerServer& /*server*/,
                                                        const std::string& referenceID) {
    const auto screen = _registry.screenWithReferenceID(referenceID);
    if (!screen) {
        return {};
    }
    PropertyValue gamma = compactArrayOf(*screen);
    if (!gamma.is_array()) {
        return {};
    }
    const auto& screens = _registry.screens();
    const auto index = std::ranges::find(screens, screen) - screens.begin();
    const auto kind = _targets.visibleCover(screen->directDisplayID());
    return {{"number", static_cast<std::uint64_t>(index + 1)},
            {"local", screen->isReferenceIDLocallyUnique()},
            {"gamma", std::move(gamma)},
            {"content", kind ? contentOf(*kind) : transparent}};
}

// These words differ from those of the infos; readers of states expect them.
PropertyValue RemoteDisplays::playerServerStateForScreen(TQPlayerServer& /*server*/,
                                                         const std::string& referenceID) {
    const auto screen = _registry.screenWithReferenceID(referenceID);
    if (!screen) {
        return {};
    }
    std::string_view content = "transparentTargets";
    switch (_targets.coverKind(screen->directDisplayID())) {
        case TargetKind::Color:
            content = "color";
            break;
        case TargetKind::Grayscale:
            content = grayscaleTargets;
            break;
    }
    return {{"gamma", compactArrayOf(*screen)}, {"content", content}};
}

void RemoteDisplays::playerServerSetStateForScreen(TQPlayerServer& /*server*/,
                                                   const PropertyValue& state,
                                                   const std::string& referenceID) {
    const auto screen = _registry.screenWithReferenceID(referenceID);
    if (!screen) {
        // An unknown display only triggers a panel refresh. Its ID is not kept, because strangers
        // can make up any number.
        _orders.add("", {});
        return;
    }
    RemoteOrder order;
    if (const auto gamma = state.find("gamma"); gamma != state.end()) {
        order.curve = curveFrom(*gamma, *screen);
    }
    if (const auto content = state.find("content");
        content != state.end() && content->is_string()) {
        order.content = content->get<std::string>();
    }
    _orders.add(referenceID, std::move(order));
}

std::shared_ptr<TQExtendedGammaCurve> RemoteDisplays::curveFrom(const PropertyValue& compactArray,
                                                                const KVScreen& screen) {
    auto curve = TQExtendedGammaCurve::gammaCurveWithCompactArray(compactArray);
    if (curve && isUsable(*curve)) {
        return curve;
    }
    if (_refusalLog.admits(_runLoop.now())) {
        std::string line = "A curve from the network was not taken for the display ";
        _log(line.append(screen.referenceID()).append(": no display can show it."));
    }
    return nullptr;
}

void RemoteDisplays::carryOut(const std::string& referenceID, const RemoteOrder& order) {
    // The display may be gone by the time the order is carried out.
    const auto screen = _registry.screenWithReferenceID(referenceID);
    if (screen && order.curve) {
        setCurve(*screen, order.curve);
    }
    _reactions.refreshPanel();
    if (screen && order.content) {
        setContent(screen->directDisplayID(), *order.content);
    }
}

void RemoteDisplays::setCurve(KVScreen& screen,
                              const std::shared_ptr<TQExtendedGammaCurve>& curve) const {
    // Companions resend, because nothing confirms delivery. A repeat is not an edit, but the ramp
    // may have been replaced in the meantime. Of a table, the closest curve was announced.
    if (compactArrayOf(screen) == curve->gammaCurveCompactArray()) {
        screen.setGammaCurve(tableOf(screen) ? screen.gammaCurve() : curve);
        return;
    }
    _reactions.willEdit();
    screen.setGammaCurve(curve);
    _reactions.didEdit();
}

void RemoteDisplays::setContent(DisplayID display, const std::string& content) {
    if (content == colorTargets) {
        _remoteTargets.show(display, TargetKind::Color);
    } else if (content == grayscaleTargets) {
        _remoteTargets.show(display, TargetKind::Grayscale);
    } else {
        _remoteTargets.dismiss(display);
    }
}

void RemoteDisplays::playerServerFailedBroadcastTest(TQPlayerServer& /*server*/,
                                                     std::uint64_t /*reason*/) {
    _reactions.broadcastFailed();
}

}  // namespace tonquil
