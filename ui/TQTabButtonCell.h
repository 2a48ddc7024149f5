// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractButton>

namespace tonquil {

/// A flat button of a tab selector: checked when its tab is selected.
///
/// On the dark theme it is just a grey area. On the light theme, and with increased contrast, it is
/// the style's own button.
class TQTabButtonCell : public QAbstractButton {
 public:
    /// The background of a title or an icon on the button.
    enum class BackgroundStyle { Light = 0, Dark = 1 };

    explicit TQTabButtonCell(const QString& title, QWidget* parent = nullptr);

    /// As of the last time the title was drawn.
    [[nodiscard]] BackgroundStyle backgroundStyle() const { return _backgroundStyle; }
    [[nodiscard]] BackgroundStyle interiorBackgroundStyle() const { return _backgroundStyle; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
    void paintEvent(QPaintEvent* event) override;
    /// Leaves the arrow keys to the row of buttons.
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

 private:
    void drawBezelWithFrame(QPainter& painter, const QRect& frame) const;
    /// Returns the rectangle covered by the title.
    QRect drawTitle(QPainter& painter, const QString& title, const QRect& frame);

    BackgroundStyle _backgroundStyle = BackgroundStyle::Light;
    bool _showsFocusRing = false;
};

}  // namespace tonquil
