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

/// Shows the targets in a window of its own: an ordinary floating one, or a cover that fills a
/// display and is dismissed by a click or Escape.
class TQTargetWindowController {
 public:
    /// Creates a hidden floating window with kind 0.
    TQTargetWindowController();
    ~TQTargetWindowController();
    Q_DISABLE_COPY_MOVE(TQTargetWindowController)

    /// 0: the colour target. 1: the grayscale target.
    [[nodiscard]] std::int32_t kind() const { return _kind; }
    /// Shows the target of a kind and calls the callback of `setKindChanged`, even if that kind is
    /// already shown. Ignores an unknown kind.
    void setKind(std::int32_t kind);
    /// Shows the kind of the picker's selected column.
    void changeKind(const TQVibrantMatrix& sender);

    [[nodiscard]] TQVibrantMatrix* targetKindPicker() const;
    [[nodiscard]] TQColorPatternArea* colorPatternArea() const;
    [[nodiscard]] TQGrayscalePatternArea* grayscalePatternArea() const;
    [[nodiscard]] const QWidget* currentPatternArea() const;

    /// Turns the window into a cover of the whole display. Call before it is shown.
    void prepareForFillingScreen(const TargetScreen& screen);
    /// Removes the controller from its list, if any, and closes the window. The controller stays
    /// alive until the current event is done.
    void dismissTargetWindowControllerForScreen();
    /// The covered display; a missing one for a floating window.
    [[nodiscard]] const TargetScreen& screen() const { return _screen; }
    /// Follows the display to a new position, size or number.
    void moveTo(const TargetScreen& screen);

    /// Shows and raises the window, and gives it the keyboard focus.
    void showWindow();
    [[nodiscard]] bool isShown() const;
    /// Without the window manager's frame, in points.
    [[nodiscard]] QRect frame() const;
    void setFrame(const QRect& frame);
    /// The sentence below the patterns; shown by default. A cover has none.
    void setHintsShown(bool areShown);
    /// Owned by the controller; exposed for its icon and appearance.
    [[nodiscard]] QWidget& window() const;

    /// Called with the kind whenever one is set, so that the owner can remember it.
    void setKindChanged(std::function<void(std::int32_t kind)> kindChanged);
    /// Called when the window has been closed, by the user or the program, with `frame` still
    /// valid; not when the controller is destroyed.
    void setClosed(std::function<void()> closed);

 private:
    friend class TargetWindowList;
    void windowClosed();

    std::unique_ptr<TargetWindow> _window;
    std::int32_t _kind = 0;
    TargetScreen _screen;
    TargetWindowList* _list = nullptr;  ///< Set by the list that contains the controller.
    std::function<void(std::int32_t)> _kindChanged;
    std::function<void()> _closed;
};

}  // namespace tonquil
