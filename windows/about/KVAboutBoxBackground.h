// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QPointer>
#include <QWidget>

namespace tonquil {

/// The background of the about window: from white to a colour while the window is the active one,
/// else flat and lighter. Dragging it moves the window.
class KVAboutBoxBackground : public QWidget {
 public:
    explicit KVAboutBoxBackground(QWidget* parent = nullptr);

    /// The colour of all such backgrounds. Those that are shown are not redrawn.
    [[nodiscard]] static QColor backgroundColor();
    static void setBackgroundColor(const QColor& color);

    [[nodiscard]] static bool mouseDownCanMoveWindow() { return true; }

 protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    /// Sees when the window becomes the active one, and when it no longer is.
    bool eventFilter(QObject* watched, QEvent* event) override;
    /// Also those on children that do nothing with them.
    void mousePressEvent(QMouseEvent* event) override;

 private:
    void viewWillMoveToWindow(QWidget* newWindow);
    void needsRedraw() { update(); }

    QPointer<QWidget> _observedWindow;
};

}  // namespace tonquil
