// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

#include "screens/ScreenRegistry.h"

namespace tonquil {

/// What an edit is about, beside the sliders, whose numbers are those of `PanelSlider`.
namespace editSubject {
inline constexpr int blendingMode = 100;
inline constexpr int reset = 101;
inline constexpr int openedFile = 102;
inline constexpr int remote = 103;
}  // namespace editSubject

/// What edits of the curves can be undone and done again.
///
/// A step is the curves that some screens had. Curves are replaced and never changed, so a step
/// costs a few pointers.
class EditHistory {
 public:
    static constexpr std::size_t mostSteps = 200;

    /// To be called before the curves of `screens` are replaced. Edits of the same `subject` (any
    /// number that tells one control from another) on the same screens are one step, until
    /// `endStep`.
    void willEdit(const ScreenRegistry::Screens& screens, int subject);
    void endStep() { _isOpen = false; }

    [[nodiscard]] bool canUndo() const { return !_undone.empty(); }
    [[nodiscard]] bool canRedo() const { return !_redone.empty(); }
    /// Gives the screens of the last step the curves back that they had before it; false when
    /// there is none.
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
