// SPDX-License-Identifier: MIT
#include "app/remote/RemoteTargets.h"

#include <algorithm>
#include <utility>

namespace tonquil {

void RemoteTargets::show(DisplayID display, TargetKind kind) {
    if (_with.runLoop.now() < _ignoredUntil) {
        return;
    }
    int& reports = _reports[display];
    if (!_with.targets.visibleCover(display)) {
        reports = 0;
    }
    if (reports == mostReports) {
        _with.targets.coverDisplay(display, kind);
        return;
    }
    ++reports;
    _with.targets.coverDisplay(display, kind, [this, display] { targetClosed(display); });
}

void RemoteTargets::dismiss(DisplayID display) {
    _isDismissing = true;
    _with.targets.uncoverDisplay(display);
    _isDismissing = false;
}

void RemoteTargets::targetClosed(DisplayID display) {
    // Of several reports for one close, only the first counts as a dismissal.
    const bool isFirst = std::exchange(_reports[display], 0) > 0;
    if (isFirst && !_isDismissing && isListed(display)) {
        countDismissal();
    }
    _with.closed();
}

// A target also closes when its display is unplugged, which is then no longer listed.
bool RemoteTargets::isListed(DisplayID display) const {
    return std::ranges::any_of(_with.registry.screens(), [display](const auto& screen) {
        return screen->directDisplayID() == display;
    });
}

void RemoteTargets::countDismissal() {
    const Time now = _with.runLoop.now();
    std::erase_if(_dismissals, [now](Time time) { return now - time > dismissalTime; });
    _dismissals.push_back(now);
    if (_dismissals.size() < mostDismissals) {
        return;
    }
    _dismissals.clear();
    _ignoredUntil = now + ignoringTime;
    _with.log("Targets from the network are ignored for a minute: three were closed by hand.");
}

}  // namespace tonquil
