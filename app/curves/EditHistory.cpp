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
    // Each undo leaves the replaced curves for redo, and the other way round. They are all taken
    // first: a screen that twins share is there twice.
    Step replaced;
    replaced.reserve(step.size());
    for (const auto& [screen, curve] : step) {
        replaced.emplace_back(screen, screen->gammaCurve());
    }
    for (auto& [screen, curve] : step) {
        screen->setGammaCurve(std::move(curve));
    }
    to.push_back(std::move(replaced));
    return true;
}

}  // namespace tonquil
