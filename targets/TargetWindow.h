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

/// The window of a target: the patterns, and below them the picker and a hint. As a cover it is
/// frameless, above the others, and all pattern.
class TargetWindow : public QWidget {
 public:
    /// What the person does, and what becomes of it; all must be callable.
    struct Actions {
        std::function<void(int kind)> chooseKind;  ///< By a key.
        std::function<void(int step)> stepKind;  ///< By a key: 1 to the next, -1 to the one before.
        std::function<void()> dismiss;           ///< The cover is to go.
        std::function<void()> closed;            ///< The window has been closed, by whomever.
    };

    explicit TargetWindow(Actions actions);

    [[nodiscard]] TQVibrantMatrix* targetKindPicker() const { return _picker; }
    [[nodiscard]] TQColorPatternArea* colorPatternArea() const { return _color; }
    [[nodiscard]] TQGrayscalePatternArea* grayscalePatternArea() const { return _grayscale; }

    /// Null before the first `showPatternArea`.
    [[nodiscard]] const QWidget* currentPatternArea() const { return _current; }
    /// Puts one of the two areas into the window, in the other's place.
    void showPatternArea(QWidget& area, const QString& hint);

    void setHintsShown(bool areShown);
    /// Turns the window into a cover. It must not be shown yet.
    void becomeCover();
    /// Covers a rectangle of the desktop, in points.
    void cover(const QRect& frame);
    /// Shows the window above the others. A cover takes the keyboard.
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
