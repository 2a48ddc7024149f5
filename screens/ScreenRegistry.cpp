// SPDX-License-Identifier: MIT
#include "screens/ScreenRegistry.h"

#include <algorithm>

#include "model/StoredCurve.h"
#include "values/PropertyValue.h"

namespace tonquil {

void ScreenRegistry::updateScreenList() {
    // New screens read their bases: all at one moment, with a single wait.
    const DisplayBatch batch(_service);
    Screens online;
    std::vector<Place> places;
    for (const DisplayID display : _service.onlineDisplays(mostScreens)) {
        const bool isSighted = _sightedScreenWithDirectDisplayID(display) != nullptr;
        ScreenPointer screen = screenForOnlineDisplay(display);
        if (std::find(_sightedScreens.begin(), _sightedScreens.end(), screen) ==
            _sightedScreens.end()) {
            _sightedScreens.push_back(screen);
        }
        // A base of a different length than the ramp, or an empty one, would turn a curve black.
        const std::uint32_t rampSize = _service.description(display).rampSize;
        if (std::min(rampSize, GammaTable::capacity) != screen->baseGamma().sampleCount) {
            screen->readBaseGamma();
        }
        places.push_back(placeFor(*screen, !isSighted));
        online.push_back(std::move(screen));
    }
    _screens = std::move(online);
    _places = std::move(places);
    shareTablesAmongPlaces();
}

// Twins that share a screen take it over from each other on every update, so the curve that a
// display found on arrival is known only from its place in the previous list.
ScreenRegistry::Place ScreenRegistry::placeFor(const KVScreen& screen, bool isTakenOver) const {
    const DisplayID display = screen.directDisplayID();
    const auto before = std::ranges::find(_places, display, &Place::display);
    return {.display = display,
            .twinReferenceID = screen.twinReferenceID(),
            .takenOver = before != _places.end() ? before->takenOver
                         : isTakenOver           ? screen.gammaCurve()
                                                 : nullptr};
}

void ScreenRegistry::shareTablesAmongPlaces() {
    for (const ScreenPointer& screen : _sightedScreens) {
        std::vector<DisplayID> others;
        for (std::size_t i = 0; i < _places.size(); ++i) {
            if ((*_screens)[i] == screen && _places[i].display != screen->directDisplayID()) {
                others.push_back(_places[i].display);
            }
        }
        screen->setOtherDisplayIDs(std::move(others));
    }
}

bool ScreenRegistry::isShared(const std::string& referenceID) {
    return std::ranges::count_if(screens(), [&](const ScreenPointer& screen) {
               return screen->referenceID() == referenceID;
           }) > 1;
}

// While the new list is being built, reference IDs are looked up in the previous one.
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
    const Screens& all = screens();
    for (std::size_t i = 0; i < all.size(); ++i) {
        if (predicate(_service.bounds(_places[i].display))) {
            found.push_back(all[i]);
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
    // Before the first update no screen is sighted, so this is null.
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
    for (const ScreenPointer& screen : screens()) {
        const PropertyValue* stored = entry(dictionary, screen->twinReferenceID());
        if (stored == nullptr) {
            // Stored before the display had a twin, so it applies to both.
            stored = entry(dictionary, screen->referenceID());
        }
        if (stored != nullptr) {
            screen->setGammaCurve(curveWithDictionary(*stored));
        } else if (initialCurve) {
            screen->setGammaCurve(initialCurve);
        }
    }
}

PropertyValue ScreenRegistry::gammaCurveDictionary() {
    return gammaCurveDictionaryOver(nullptr);
}

PropertyValue ScreenRegistry::gammaCurveDictionaryOver(const PropertyValue& stored) {
    PropertyValue result = PropertyValue::object();
    const Screens& all = screens();
    for (std::size_t i = 0; i < all.size(); ++i) {
        const auto& curve = all[i]->gammaCurve();
        if (!curve) {
            continue;
        }
        Place& place = _places[i];
        if (place.takenOver != curve) {
            place.takenOver = nullptr;
        }
        PropertyValue dictionary = curve->gammaCurveDictionary();
        const bool isStored = entry(stored, place.twinReferenceID) != nullptr;
        if (isStored ? !place.takenOver : isShared(all[i]->referenceID())) {
            result[place.twinReferenceID] = dictionary;
        }
        result[all[i]->referenceID()] = std::move(dictionary);
    }
    return result;
}

PropertyValue ScreenRegistry::gammaCurveDictionaryExtendingDictionary(
    const PropertyValue& dictionary) {
    PropertyValue result = dictionary.is_object() ? dictionary : PropertyValue::object();
    result.update(gammaCurveDictionaryOver(result));
    return result;
}

}  // namespace tonquil
