// SPDX-License-Identifier: MIT
#pragma once

#include <QPainter>
#include <QWidget>
#include <functional>
#include <utility>

namespace tonquil {

/// Shows a picture at its own size. Mouse presses pass through to the background and so move the
/// window.
class KVAboutBoxIconView : public QWidget {
 public:
    /// Draws in a square of 16 points at the painter's origin.
    using Picture = std::function<void(QPainter&)>;

    using QWidget::QWidget;

    void setPicture(Picture picture) {
        _picture = std::move(picture);
        update();
    }
    [[nodiscard]] static bool mouseDownCanMoveWindow() { return true; }

 protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        if (_picture) {
            QPainter painter(this);
            painter.setRenderHint(QPainter::Antialiasing);
            painter.scale(width() / 16.0, height() / 16.0);
            _picture(painter);
        }
    }

 private:
    Picture _picture;
};

}  // namespace tonquil
