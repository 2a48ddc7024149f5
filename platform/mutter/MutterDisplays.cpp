// SPDX-License-Identifier: MIT
#include "platform/mutter/MutterDisplays.h"

#include <algorithm>
#include <utility>

namespace tonquil {

std::vector<std::string> MutterDisplays::replace(const MutterLayout& layout,
                                                 DisplayListing& listing,
                                                 const std::filesystem::path& connectors) {
    const std::vector<MutterDisplay> before = std::exchange(_all, {});
    for (const MutterMonitor& monitor : layout.monitors) {
        MutterDisplay display{.listed = listedDisplay(monitor, connectors)};
        display.listed.id = listing.idFor(monitor.connector, display.listed.identity);
        _all.push_back(std::move(display));
    }
    std::vector<std::string> gone;
    for (const MutterDisplay& old : before) {
        if (MutterDisplay* const same = find(old.listed.id)) {
            same->table = old.table;
            same->isGivenBack = old.isGivenBack;
        } else {
            gone.push_back(old.listed.connector);
        }
    }
    return gone;
}

std::vector<std::string> MutterDisplays::connectors() const {
    std::vector<std::string> connectors;
    for (const MutterDisplay& display : _all) {
        connectors.push_back(display.listed.connector);
    }
    return connectors;
}

MutterDisplay* MutterDisplays::find(DisplayID display) {
    const auto found = std::ranges::find_if(
        _all, [=](const MutterDisplay& each) { return display == 0 || each.listed.id == display; });
    return found == _all.end() ? nullptr : &*found;
}

const GammaTable* MutterDisplays::tableOn(const std::string& connector) const {
    const auto isThis = [&](const MutterDisplay& each) {
        return each.listed.connector == connector;
    };
    const auto found = std::ranges::find_if(_all, isThis);
    return found == _all.end() || !found->table ? nullptr : &*found->table;
}

}  // namespace tonquil
