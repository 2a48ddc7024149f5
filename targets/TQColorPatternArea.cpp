// SPDX-License-Identifier: MIT
#include "targets/TQColorPatternArea.h"

#include "targets/ColorTargetLayout.h"
#include "targets/TQColorSquare.h"

namespace tonquil {

TQColorPatternArea::TQColorPatternArea(QWidget* parent)
    : QWidget(parent),
      _squareGray(new TQColorSquare(0, this)),
      _squareRed(new TQColorSquare(1, this)),
      _squareGreen(new TQColorSquare(2, this)),
      _squareBlue(new TQColorSquare(3, this)),
      _squareBW(new TQColorSquare(4, this)),
      _rampGray(new TQColorRamp(0, this)),
      _rampColor(new TQColorRamp(1, this)),
      _rampGraySmooth(new TQColorRamp(2, this)),
      _rampColorSmooth(new TQColorRamp(3, this)) {
    layoutSubviews();
}

void TQColorPatternArea::layoutSubviews() {
    if (_rampGraySmooth.isNull()) {
        return;
    }
    const ColorTargetLayout layout = ColorTargetLayout::forSize(width(), height());
    const auto place = [this](QWidget& piece, const PatternFrame& frame) {
        piece.setGeometry(frame.fromTopOf(height()).toRect());
    };
    place(*_squareGray, layout.squareGray);
    place(*_squareRed, layout.squareRed);
    place(*_squareGreen, layout.squareGreen);
    place(*_squareBlue, layout.squareBlue);
    place(*_squareBW, layout.squareBW);
    place(*_rampGraySmooth, layout.rampGraySmooth);
    place(*_rampColorSmooth, layout.rampColorSmooth);
    place(*_rampGray, layout.rampGray);
    place(*_rampColor, layout.rampColor);
}

void TQColorPatternArea::resizeEvent(QResizeEvent* /*event*/) {
    layoutSubviews();
}

}  // namespace tonquil
