// SPDX-License-Identifier: MIT
#pragma once

#include <QRectF>

class QColor;
class QPainter;

namespace tonquil {

struct Theme;

/// The box of a check box or, if it is round, of a radio button.
struct ChoiceBox {
    QRectF frame;
    bool isRound = false;
    bool isChecked = false;
    bool isDown = false;
    bool hasFocusRing = false;
};

void drawChoiceBox(QPainter& painter, const ChoiceBox& box, const Theme& theme);

/// Draws a tick as it is in a box of this size.
void drawTick(QPainter& painter, const QRectF& box, const QColor& colour);

}  // namespace tonquil
