// SPDX-License-Identifier: MIT
#include "app/files/MultiDisplayFile.h"

#include <algorithm>

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

std::size_t MultiDisplayFile::applyTo(ScreenRegistry& registry) const {
    const ScreenRegistry::Screens attached = registry.screens();
    std::size_t count = 0;
    for (const auto& screen : registry.sightedScreens()) {
        const auto keys = screen->keys();
        const auto* const key =
            std::ranges::find_if(keys, [this](const auto& each) { return _curves.contains(each); });
        if (key == keys.end()) {
            continue;
        }
        screen->setGammaCurve(_curves.at(*key));
        screen->applyGammaCurve();
        count += std::find(attached.begin(), attached.end(), screen) != attached.end() ? 1 : 0;
    }
    return count;
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
