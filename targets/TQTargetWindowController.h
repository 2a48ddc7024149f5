// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>
#include <cstdint>
#include <functional>
#include <memory>

#include "targets/TargetScreen.h"

class QWidget;

namespace tonquil {

class TargetWindow;
class TargetWindowList;
class TQColorPatternArea;
class TQGrayscalePatternArea;
class TQVibrantMatrix;

/// Shows the targets in a window of its own: an ordinary one that floats, or one that covers a
/// display and that a click, or Escape, dismisses.
class TQTargetWindowController {
 public:
    /// A floating window, not shown, at kind 0.
    TQTargetWindowController();
    ~TQTargetWindowController();
    Q_DISABLE_COPY_MOVE(TQTargetWindowController)

    /// 0: the colour target. 1: the grayscale target.
    [[nodiscard]] std::int32_t kind() const { return _kind; }
    /// Shows the target of a kind and tells `setKindChanged`'s, also when that kind is shown
    /// already. A kind that does not exist is ignored.
    void setKind(std::int32_t kind);
    /// Shows the kind of the picker's selected column.
    void changeKind(const TQVibrantMatrix& sender);

    [[nodiscard]] TQVibrantMatrix* targetKindPicker() const;
    [[nodiscard]] TQColorPatternArea* colorPatternArea() const;
    [[nodiscard]] TQGrayscalePatternArea* grayscalePatternArea() const;
    [[nodiscard]] const QWidget* currentPatternArea() const;

    /// Turns the window into a cover of the whole display. To be called before it is shown.
    void prepareForFillingScreen(const TargetScreen& screen);
    /// Takes the controller out of its list, if it is in one, and closes the window. The
    /// controller lives on until the current event is done.
    void dismissTargetWindowControllerForScreen();
    /// The display that is covered; a missing one for a floating window.
    [[nodiscard]] const TargetScreen& screen() const { return _screen; }
    /// Follows the display to another place, size or number.
    void moveTo(const TargetScreen& screen);

    /// Shows the window in front of the others, and gives it the keyboard.
    void showWindow();
    [[nodiscard]] bool isShown() const;
    /// Without the window manager's decoration, in points.
    [[nodiscard]] QRect frame() const;
    void setFrame(const QRect& frame);
    /// The sentence below the patterns; shown at first. A cover has none.
    void setHintsShown(bool areShown);
    /// Owned by the controller, for its icon and its appearance.
    [[nodiscard]] QWidget& window() const;

    /// Called with the kind whenever one is set: the owner may remember it.
    void setKindChanged(std::function<void(std::int32_t kind)> kindChanged);
    /// Called when the window has been closed, by the person or by the program, while `frame` is
    /// still what it was; not when the controller is destroyed.
    void setClosed(std::function<void()> closed);

 private:
    friend class TargetWindowList;
    void windowClosed();

    std::unique_ptr<TargetWindow> _window;
    std::int32_t _kind = 0;
    TargetScreen _screen;
    TargetWindowList* _list = nullptr;  ///< Set by the list while the controller is in it.
    std::function<void(std::int32_t)> _kindChanged;
    std::function<void()> _closed;
};

}  // namespace tonquil
