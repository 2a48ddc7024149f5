// SPDX-License-Identifier: MIT
#include "app/files/MultiDisplayFile.h"

#include "app/files/FileDialogs.h"
#include "model/StoredCurve.h"
#include "plist/Unicode.h"

namespace tonquil {

MultiDisplayFile::MultiDisplayFile(const PropertyValue& screens) {
    if (!screens.is_object()) {
        return;
    }
    for (const auto& [key, value] : screens.items()) {
        // A key with control characters could not be saved, and would block saving everything else
        // too.
        if (value.is_object() && isPropertyListText(key)) {
            _curves[key] = curveWithDictionary(value);
        }
    }
}

PropertyValue MultiDisplayFile::allScreensDictionary() const {
    PropertyValue allScreens = PropertyValue::object();
    for (const auto& [key, curve] : _curves) {
        allScreens[key] = curve->gammaCurveDictionary();
    }
    return allScreens;
}

std::shared_ptr<KVGammaCurve> MultiDisplayFile::curveFor(const KVScreen& screen) const {
    for (const std::string& key : screen.keys()) {
        if (const auto found = _curves.find(key); found != _curves.end()) {
            return found->second;
        }
    }
    return nullptr;
}

ScreenRegistry::Screens MultiDisplayFile::matchingScreens(ScreenRegistry& registry) const {
    ScreenRegistry::Screens screens = registry.sightedScreens();
    std::erase_if(screens, [this](const auto& screen) { return curveFor(*screen) == nullptr; });
    return screens;
}

void MultiDisplayFile::applyTo(const ScreenRegistry::Screens& matching) const {
    for (const auto& screen : matching) {
        screen->setGammaCurve(curveFor(*screen));
        screen->applyGammaCurve();
    }
}

PropertyValue MultiDisplayFile::contentsFor(ScreenRegistry& registry) {
    PropertyValue screens = registry.gammaCurveDictionary();
    for (const auto& screen : registry.screens()) {
        if (const auto& curve = screen->gammaCurve()) {
            screens[screen->oldReferenceID()] = curve->gammaCurveDictionary();
        }
    }
    return {{"Format", static_cast<std::int64_t>(SettingsFormat::MultiDisplay)},
            {"Screens", screens}};
}

}  // namespace tonquil
