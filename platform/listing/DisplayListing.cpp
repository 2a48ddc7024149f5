// SPDX-License-Identifier: MIT
#include "platform/listing/DisplayListing.h"

#include <algorithm>
#include <utility>

namespace tonquil {

DisplayID DisplayListing::idFor(const std::string& connector, const DisplayIdentity& identity) {
    const auto isThis = [&](const KnownDisplay& each) {
        return each.connector == connector && each.identity == identity;
    };
    const auto known = std::ranges::find_if(_known, isThis);
    if (known != _known.end()) {
        return known->id;
    }
    DisplayID id = numberOf(connector);
    while (id == 0 || std::ranges::find(_known, id, &KnownDisplay::id) != _known.end()) {
        ++id;
    }
    _known.push_back({.connector = connector, .identity = identity, .id = id});
    return id;
}

void DisplayListing::announce(std::vector<ListedDisplay> displays) {
    const auto before = std::exchange(_announced, std::move(displays));
    std::set<DisplayID> affected = std::exchange(_again, {});
    const auto addChanged = [&](const auto& those, const auto& others) {
        for (const ListedDisplay& display : those) {
            if (std::ranges::find(others, display) == others.end()) {
                affected.insert(display.id);
            }
        }
    };
    addChanged(before, _announced);
    addChanged(_announced, before);
    const auto calibrationIn = [](const auto& those, DisplayID display) {
        const auto found = std::ranges::find(those, display, &ListedDisplay::id);
        return found == those.end() ? 0 : found->calibration;
    };
    for (const DisplayID display : affected) {
        _callbacks.call(display, beginConfiguration);
    }
    for (const DisplayID display : affected) {
        const bool isRecalibrated =
            calibrationIn(before, display) != calibrationIn(_announced, display);
        _callbacks.call(display,
                        isRecalibrated ? endConfiguration | calibrationChanged : endConfiguration);
    }
}

void DisplayListing::report(DisplayID display, const std::string& text) {
    if (_reported.insert(display).second && _log) {
        _log(text);
    }
}

void DisplayListing::reportGone(DisplayID display) {
    report(display, "Display " + std::to_string(display) + " is gone.");
}

}  // namespace tonquil
