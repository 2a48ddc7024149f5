// SPDX-License-Identifier: MIT
#include "screens/ScreenRegistry.h"

#include <algorithm>

#include "model/TQExtendedGammaCurve.h"
#include "values/PropertyValue.h"

namespace tonquil {

void ScreenRegistry::updateScreenList() {
    // New screens read their bases: at one moment, and waiting once.
    const DisplayBatch batch(_service);
    Screens online;
    for (const DisplayID display : _service.onlineDisplays(mostScreens)) {
        ScreenPointer screen = screenForOnlineDisplay(display);
        if (std::find(_sightedScreens.begin(), _sightedScreens.end(), screen) ==
            _sightedScreens.end()) {
            _sightedScreens.push_back(screen);
        }
        // Over a base of another length than its ramp, or of none, a curve would come out black.
        const std::uint32_t rampSize = _service.description(display).rampSize;
        if (std::min(rampSize, GammaTable::capacity) != screen->baseGamma().sampleCount) {
            screen->readBaseGamma();
        }
        online.push_back(std::move(screen));
    }
    _screens = std::move(online);
}

// Until the new list is complete, the reference IDs are looked up in the previous one.
ScreenRegistry::ScreenPointer ScreenRegistry::screenForOnlineDisplay(DisplayID display) {
    if (auto sighted = _sightedScreenWithDirectDisplayID(display)) {
        return sighted;
    }
    if (auto known = screenWithReferenceID(referenceIDFor(_service.identity(display)).text)) {
        known->_setDirectDisplayID(display);
        return known;
    }
    return std::make_shared<KVScreen>(_service, display);
}

const ScreenRegistry::Screens& ScreenRegistry::screens() {
    if (!_screens) {
        updateScreenList();
    }
    return *_screens;
}

template <typename Predicate>
ScreenRegistry::Screens ScreenRegistry::screensWithBounds(Predicate predicate) {
    Screens found;
    for (const ScreenPointer& screen : screens()) {
        if (predicate(_service.bounds(screen->directDisplayID()))) {
            found.push_back(screen);
        }
    }
    return found;
}

ScreenRegistry::Screens ScreenRegistry::screensWithPoint(const Point& point) {
    return screensWithBounds([topDown = flipped(_service, point)](const Rectangle& bounds) {
        return bounds.contains(topDown);
    });
}

ScreenRegistry::Screens ScreenRegistry::screensWithRect(const Rectangle& rectangle) {
    return screensWithBounds([topDown = flipped(_service, rectangle)](const Rectangle& bounds) {
        return bounds == topDown;
    });
}

ScreenRegistry::Screens ScreenRegistry::screensContainingRect(const Rectangle& rectangle) {
    return screensWithBounds([&](const Rectangle& bounds) { return bounds.contains(rectangle); });
}

ScreenRegistry::Screens ScreenRegistry::screensIntersectingRect(const Rectangle& rectangle) {
    return screensWithBounds([&](const Rectangle& bounds) { return bounds.intersects(rectangle); });
}

ScreenRegistry::ScreenPointer ScreenRegistry::screenWithScreen(
    const PlatformScreen* platformScreen) {
    const Rectangle frame = platformScreen == nullptr ? Rectangle{} : platformScreen->frame();
    const auto displays = _service.displaysWithPoint(frame.centre(), 1);
    return displays.empty() ? nullptr : screenWithDirectDisplayID(displays.front());
}

ScreenRegistry::ScreenPointer ScreenRegistry::screenWithDirectDisplayID(DisplayID display) {
    auto sighted = _sightedScreenWithDirectDisplayID(display);
    return sighted ? sighted : std::make_shared<KVScreen>(_service, display);
}

ScreenRegistry::ScreenPointer ScreenRegistry::_sightedScreenWithDirectDisplayID(
    DisplayID display) const {
    // Without an update nothing has been sighted, so this is null until then.
    const auto found =
        std::find_if(_sightedScreens.begin(), _sightedScreens.end(),
                     [=](const auto& screen) { return screen->directDisplayID() == display; });
    return found == _sightedScreens.end() ? nullptr : *found;
}

ScreenRegistry::ScreenPointer ScreenRegistry::screenWithReferenceID(
    std::string_view referenceID) const {
    if (!_screens) {
        return nullptr;
    }
    const auto found = std::find_if(_screens->begin(), _screens->end(), [=](const auto& screen) {
        return screen->referenceID() == referenceID;
    });
    return found == _screens->end() ? nullptr : *found;
}

void ScreenRegistry::adoptGammaCurveDictionary(const PropertyValue& dictionary,
                                               const KVScreen::CurvePointer& initialCurve) {
    const DisplayBatch batch(_service);
    Screens unserved = initialCurve ? screens() : Screens{};
    if (dictionary.is_object()) {
        for (const auto& [key, value] : dictionary.items()) {
            if (const ScreenPointer screen = screenWithReferenceID(key)) {
                screen->setGammaCurve(TQExtendedGammaCurve::gammaCurveWithDictionary(value));
                std::erase(unserved, screen);
            }
        }
    }
    for (const ScreenPointer& screen : unserved) {
        screen->setGammaCurve(initialCurve);
    }
}

PropertyValue ScreenRegistry::gammaCurveDictionary() {
    return gammaCurveDictionaryExtendingDictionary(nullptr);
}

PropertyValue ScreenRegistry::gammaCurveDictionaryExtendingDictionary(
    const PropertyValue& dictionary) {
    PropertyValue result = dictionary.is_object() ? dictionary : PropertyValue::object();
    for (const ScreenPointer& screen : screens()) {
        if (const auto& curve = screen->gammaCurve()) {
            result[screen->referenceID()] = curve->gammaCurveDictionary();
        }
    }
    return result;
}

}  // namespace tonquil
