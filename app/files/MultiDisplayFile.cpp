// SPDX-License-Identifier: MIT
#include "app/files/MultiDisplayFile.h"

#include <algorithm>

#include "app/files/FileDialogs.h"
#include "plist/Unicode.h"

namespace tonquil {

MultiDisplayFile::MultiDisplayFile(const PropertyValue& screens) {
    if (!screens.is_object()) {
        return;
    }
    for (const auto& [key, value] : screens.items()) {
        // A key of control characters could not be stored, and all that is stored beside it
        // neither.
        if (value.is_object() && isPropertyListText(key)) {
            _curves[key] = TQExtendedGammaCurve::gammaCurveWithDictionary(value);
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

std::size_t MultiDisplayFile::applyTo(ScreenRegistry& registry) const {
    const ScreenRegistry::Screens attached = registry.screens();
    std::size_t count = 0;
    for (const auto& screen : registry.sightedScreens()) {
        auto found = _curves.find(screen->referenceID());
        if (found == _curves.end()) {
            found = _curves.find(screen->oldReferenceID());
        }
        if (found == _curves.end()) {
            continue;
        }
        screen->setGammaCurve(found->second);
        screen->applyGammaCurve();
        count += std::find(attached.begin(), attached.end(), screen) != attached.end() ? 1 : 0;
    }
    return count;
}

PropertyValue MultiDisplayFile::contentsFor(ScreenRegistry& registry) {
    PropertyValue screens = PropertyValue::object();
    for (const auto& screen : registry.screens()) {
        if (const auto& curve = screen->gammaCurve()) {
            const PropertyValue dictionary = curve->gammaCurveDictionary();
            screens[screen->referenceID()] = dictionary;
            screens[screen->oldReferenceID()] = dictionary;
        }
    }
    return {{"Format", static_cast<std::int64_t>(SettingsFormat::MultiDisplay)},
            {"Screens", screens}};
}

}  // namespace tonquil
