// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

#include "screens/ScreenRegistry.h"

namespace tonquil {

/// Edit subjects besides the sliders, which use the numbers of `PanelSlider`.
namespace editSubject {
inline constexpr int blendingMode = 100;
inline constexpr int reset = 101;
inline constexpr int openedFile = 102;
inline constexpr int remote = 103;
inline constexpr int madeEditable = 104;
}  // namespace editSubject

/// Undo and redo of curve edits.
///
/// A step holds the curves that some screens had. Curves are replaced and never modified, so a step
/// costs a few pointers.
class EditHistory {
 public:
    static constexpr std::size_t mostSteps = 200;

    /// Call it before replacing the curves of `screens`. Edits of the same `subject` (any number
    /// that identifies a control) on the same screens are one step, until `endStep`.
    void willEdit(const ScreenRegistry::Screens& screens, int subject);
    void endStep() { _isOpen = false; }

    /// What the last edit was about.
    [[nodiscard]] int lastSubject() const { return _subject; }

    [[nodiscard]] bool canUndo() const { return !_undone.empty(); }
    [[nodiscard]] bool canRedo() const { return !_redone.empty(); }
    /// Restores the curves from before the last step; false if there is none.
    bool undo() { return step(_undone, _redone); }
    /// The reverse.
    bool redo() { return step(_redone, _undone); }

 private:
    using Step = std::vector<std::pair<ScreenRegistry::ScreenPointer, KVScreen::CurvePointer>>;

    [[nodiscard]] static bool isAbout(const Step& step, const ScreenRegistry::Screens& screens);
    bool step(std::vector<Step>& from, std::vector<Step>& to);

    std::vector<Step> _undone;
    std::vector<Step> _redone;
    bool _isOpen = false;
    int _subject = 0;
};

}  // namespace tonquil
