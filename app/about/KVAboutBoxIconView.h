// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>
#include <QPainter>
#include <QWidget>

namespace tonquil {

/// Shows an icon as large as itself. Presses go through to what is behind it, and so move the
/// window.
class KVAboutBoxIconView : public QWidget {
 public:
    using QWidget::QWidget;

    void setIcon(const QIcon& icon) {
        _icon = icon;
        update();
    }
    [[nodiscard]] static bool mouseDownCanMoveWindow() { return true; }

 protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        _icon.paint(&painter, rect());
    }

 private:
    QIcon _icon;
};

}  // namespace tonquil
