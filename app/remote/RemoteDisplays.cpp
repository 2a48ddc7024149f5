// SPDX-License-Identifier: MIT
#include "app/remote/RemoteDisplays.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "model/TQExtendedGammaCurve.h"

namespace tonquil {

namespace {

constexpr std::string_view colorTargets = "colorTargets";
constexpr std::string_view grayscaleTargets = "grayscaleTargets";
constexpr std::string_view transparent = "transparent";

// Curves keep to a few units; beyond this a table is all ends, and infinities could not be told of
// in an announce.
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

/// The display's curve in the form that it is sent in.
PropertyValue compactArrayOf(const KVScreen& screen) {
    const auto curve = std::dynamic_pointer_cast<TQExtendedGammaCurve>(screen.gammaCurve());
    return curve ? curve->gammaCurveCompactArray() : PropertyValue();
}

}  // namespace

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

// The words differ from those of the infos: whoever reads states knows them so.
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
        _reactions.refreshPanel();
        return;
    }
    if (const auto gamma = state.find("gamma"); gamma != state.end()) {
        setCurve(*screen, *gamma);
    }
    _reactions.refreshPanel();
    if (const auto content = state.find("content");
        content != state.end() && content->is_string()) {
        setContent(screen->directDisplayID(), content->get<std::string>());
    }
}

void RemoteDisplays::setCurve(KVScreen& screen, const PropertyValue& compactArray) {
    const auto curve = TQExtendedGammaCurve::gammaCurveWithCompactArray(compactArray);
    if (!curve || !isUsable(*curve)) {
        std::string line = "A curve from the network was not taken for the display ";
        _log(line.append(screen.referenceID()).append(": no display can show it."));
        return;
    }
    // Companions repeat what they have sent, since nobody tells them that it came. It is no edit,
    // yet the display may have been disturbed.
    if (compactArrayOf(screen) == curve->gammaCurveCompactArray()) {
        screen.setGammaCurve(curve);
        return;
    }
    const auto& screens = _registry.screens();
    const auto listed = std::ranges::find_if(
        screens, [&screen](const auto& each) { return each.get() == &screen; });
    _reactions.willEdit({*listed});
    screen.setGammaCurve(curve);
    _reactions.didEdit();
}

void RemoteDisplays::setContent(DisplayID display, const std::string& content) {
    if (content == colorTargets) {
        _targets.coverDisplay(display, TargetKind::Color, _reactions.targetClosed);
    } else if (content == grayscaleTargets) {
        _targets.coverDisplay(display, TargetKind::Grayscale, _reactions.targetClosed);
    } else {
        _targets.uncoverDisplay(display);
    }
}

void RemoteDisplays::playerServerFailedBroadcastTest(TQPlayerServer& /*server*/,
                                                     std::uint64_t /*reason*/) {
    _reactions.broadcastFailed();
}

}  // namespace tonquil
