// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <functional>

namespace tonquil {

/// A label of plain text that stays legible on a dark, translucent background.
///
/// On the dark theme, whether the background is translucent or transparency is reduced, the text is
/// drawn lighter than its palette colour; the palette is not changed.
class TQVibrantLabel : public QLabel {
 public:
    explicit TQVibrantLabel(const QString& text = {}, QWidget* parent = nullptr);

    /// How far towards white the text is drawn, 0 to 1.
    [[nodiscard]] double lightening() const;

    /// Called on a double-click: the label sits beside a slider and resets it.
    void setDoubleClickAction(std::function<void()> action);

 protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
    std::function<void()> _doubleClickAction;
};

}  // namespace tonquil
