// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QWidget>

#include "targets/TQColorRamp.h"

namespace tonquil {

class TQColorSquare;

/// The colour target: five squares, two smooth ramps above them and two stepped ones below. It
/// draws no background and owns its pieces.
class TQColorPatternArea : public QWidget {
 public:
    explicit TQColorPatternArea(QWidget* parent = nullptr);

    [[nodiscard]] TQColorSquare* squareGray() const { return _squareGray; }
    [[nodiscard]] TQColorSquare* squareRed() const { return _squareRed; }
    [[nodiscard]] TQColorSquare* squareGreen() const { return _squareGreen; }
    [[nodiscard]] TQColorSquare* squareBlue() const { return _squareBlue; }
    [[nodiscard]] TQColorSquare* squareBW() const { return _squareBW; }
    [[nodiscard]] TQColorRamp* rampGray() const { return _rampGray; }
    [[nodiscard]] TQColorRamp* rampColor() const { return _rampColor; }
    [[nodiscard]] TQColorRamp* rampGraySmooth() const { return _rampGraySmooth; }
    [[nodiscard]] TQColorRamp* rampColorSmooth() const { return _rampColorSmooth; }

    /// Places the pieces for the current size; called automatically on a resize. Nothing moves once
    /// `rampGraySmooth` has been deleted.
    void layoutSubviews();

 protected:
    void resizeEvent(QResizeEvent* event) override;

 private:
    TQColorSquare* _squareGray;
    TQColorSquare* _squareRed;
    TQColorSquare* _squareGreen;
    TQColorSquare* _squareBlue;
    TQColorSquare* _squareBW;
    TQColorRamp* _rampGray;
    TQColorRamp* _rampColor;
    QPointer<TQColorRamp> _rampGraySmooth;
    TQColorRamp* _rampColorSmooth;
};

}  // namespace tonquil
