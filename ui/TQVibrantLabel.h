// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <functional>

namespace tonquil {

/// A label of plain text that stays legible on a dark, translucent background.
///
/// On the dark theme, where the background may shine through or transparency is reduced, the text
/// is drawn lighter than its colour says; the colour itself (the palette's) is not touched.
class TQVibrantLabel : public QLabel {
 public:
    explicit TQVibrantLabel(const QString& text = {}, QWidget* parent = nullptr);

    /// How far towards white the text is drawn, 0 to 1.
    [[nodiscard]] double lightening() const;

    /// Called when the label is double-clicked; it sits beside a slider and resets it.
    void setDoubleClickAction(std::function<void()> action);

 protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
    std::function<void()> _doubleClickAction;
};

}  // namespace tonquil
