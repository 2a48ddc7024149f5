// SPDX-License-Identifier: MIT
#pragma once

#include <QProxyStyle>
#include <QStyleOption>

#include "ui/theme/Drawing.h"
#include "ui/theme/Theme.h"

namespace tonquil {

/// Qt's plain style instead of the desktop's, which would tint the greys.
class QuietStyle : public QProxyStyle {
 public:
    QuietStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

    [[nodiscard]] int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                                QStyleHintReturn* data) const override {
        // Disabled text is fainter, which an etched shadow would counteract.
        return hint == SH_EtchDisabledText ? 0 : QProxyStyle::styleHint(hint, option, widget, data);
    }
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override {
        if (element != PE_FrameFocusRect || widget == nullptr) {
            QProxyStyle::drawPrimitive(element, option, painter, widget);
            return;
        }
        constexpr double ringWidth = 2;
        drawRoundedFrame(*painter, option->rect, fieldRadius, ringWidth,
                         themeOf(*widget).focusRing);
    }
};

}  // namespace tonquil
