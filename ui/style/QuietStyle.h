// SPDX-License-Identifier: MIT
#pragma once

#include <QProxyStyle>

class QStyleOptionButton;

namespace tonquil {

/// The style of all the program's windows, flat and grey: the desktop's own would tint the greys.
/// It draws menus, lists, tool tips, choices, buttons and scroll bars in the theme of their window
/// and leaves the rest to Qt's plain style.
///
/// A button or a list shows a focus ring only if it was reached by keyboard.
class QuietStyle : public QProxyStyle {
 public:
    QuietStyle();

    using QProxyStyle::polish;
    void polish(QWidget* widget) override;
    [[nodiscard]] int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                                QStyleHintReturn* data) const override;
    [[nodiscard]] int pixelMetric(PixelMetric metric, const QStyleOption* option,
                                  const QWidget* widget) const override;
    [[nodiscard]] QSize sizeFromContents(ContentsType type, const QStyleOption* option,
                                         const QSize& contents,
                                         const QWidget* widget) const override;
    [[nodiscard]] QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                       SubControl part, const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;

 protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    void drawChoice(QPainter& painter, const QStyleOptionButton& option,
                    const QWidget& widget) const;
};

}  // namespace tonquil
