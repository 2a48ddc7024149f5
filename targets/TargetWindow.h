// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>
#include <functional>

class QLabel;
class QStackedLayout;

namespace tonquil {

class TQColorPatternArea;
class TQGrayscalePatternArea;
class TQVibrantMatrix;

/// The window of a target: the patterns, with the picker and a hint below. As a cover it is
/// frameless, on top, and filled by the pattern.
class TargetWindow : public QWidget {
 public:
    /// Callbacks for user actions; all must be callable.
    struct Actions {
        std::function<void(int kind)> chooseKind;  ///< By a key.
        std::function<void(int step)> stepKind;  ///< By a key: 1 for the next, -1 for the previous.
        std::function<void()> dismiss;           ///< Dismisses the cover.
        std::function<void()> closed;  ///< The window has been closed, for whatever reason.
    };

    explicit TargetWindow(Actions actions);

    [[nodiscard]] TQVibrantMatrix* targetKindPicker() const { return _picker; }
    [[nodiscard]] TQColorPatternArea* colorPatternArea() const { return _color; }
    [[nodiscard]] TQGrayscalePatternArea* grayscalePatternArea() const { return _grayscale; }

    /// Null before the first `showPatternArea`.
    [[nodiscard]] const QWidget* currentPatternArea() const { return _current; }
    /// Shows one of the two areas in the window, replacing the other.
    void showPatternArea(QWidget& area, const QString& hint);

    void setHintsShown(bool areShown);
    /// Turns the window into a cover. Call before it is shown.
    void becomeCover();
    /// Covers a rectangle of the desktop, in points.
    void cover(const QRect& frame);
    /// Shows and raises the window. A cover takes the keyboard focus.
    void showInFront();

 protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

 private:
    [[nodiscard]] QWidget* makeFooter();

    TQVibrantMatrix* _picker;
    QLabel* _hint;
    TQColorPatternArea* _color;
    TQGrayscalePatternArea* _grayscale;
    QStackedLayout* _patterns;
    QWidget* _footer;
    const QWidget* _current = nullptr;
    bool _isCover = false;
    bool _isPressed = false;
    Actions _actions;
};

}  // namespace tonquil
