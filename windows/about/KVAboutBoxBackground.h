// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QPointer>
#include <QWidget>

namespace tonquil {

/// The about window's background: a gradient from white to a colour while the window is active,
/// otherwise flat and lighter. Dragging it moves the window.
class KVAboutBoxBackground : public QWidget {
 public:
    explicit KVAboutBoxBackground(QWidget* parent = nullptr);

    /// The colour of all these backgrounds. Changing it does not repaint visible ones.
    [[nodiscard]] static QColor backgroundColor();
    static void setBackgroundColor(const QColor& color);

    [[nodiscard]] static bool mouseDownCanMoveWindow() { return true; }

 protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    /// Detects when the window is activated and deactivated.
    bool eventFilter(QObject* watched, QEvent* event) override;
    /// Also receives presses that child widgets ignore.
    void mousePressEvent(QMouseEvent* event) override;

 private:
    void viewWillMoveToWindow(QWidget* newWindow);
    void needsRedraw() { update(); }

    QPointer<QWidget> _observedWindow;
};

}  // namespace tonquil
