// SPDX-License-Identifier: MIT
#include "app/curves/EditHistory.h"

#include <algorithm>

namespace tonquil {

bool EditHistory::isAbout(const Step& step, const ScreenRegistry::Screens& screens) {
    return std::equal(step.begin(), step.end(), screens.begin(), screens.end(),
                      [](const auto& entry, const auto& screen) { return entry.first == screen; });
}

void EditHistory::willEdit(const ScreenRegistry::Screens& screens, int subject) {
    _redone.clear();
    if (_isOpen && _subject == subject && isAbout(_undone.back(), screens)) {
        return;
    }
    Step step;
    step.reserve(screens.size());
    for (const auto& screen : screens) {
        step.emplace_back(screen, screen->gammaCurve());
    }
    if (_undone.size() == mostSteps) {
        _undone.erase(_undone.begin());
    }
    _undone.push_back(std::move(step));
    _subject = subject;
    _isOpen = true;
}

bool EditHistory::step(std::vector<Step>& from, std::vector<Step>& to) {
    endStep();
    if (from.empty()) {
        return false;
    }
    Step step = std::move(from.back());
    from.pop_back();
    for (auto& [screen, curve] : step) {
        // Each undo leaves the replaced curve in the step, for redo, and the other way round.
        KVScreen::CurvePointer present = screen->gammaCurve();
        screen->setGammaCurve(std::exchange(curve, std::move(present)));
    }
    to.push_back(std::move(step));
    return true;
}

}  // namespace tonquil
