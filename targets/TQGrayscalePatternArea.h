// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>
#include <array>

namespace tonquil {

class TQColorRamp;

/// The grayscale target: five boxes around middle grey, a ramp below them, and the same ramp
/// rotated above them. It is opaque, nearly black, and owns its ramps.
class TQGrayscalePatternArea : public QWidget {
 public:
    explicit TQGrayscalePatternArea(QWidget* parent = nullptr);

    [[nodiscard]] TQColorRamp* rampGray() const { return _rampGray; }
    [[nodiscard]] TQColorRamp* rampGrayFlipped() const { return _rampGrayFlipped; }

    /// The levels of `middleBox1` to `middleBox5`, from 0 to 1.
    [[nodiscard]] static const std::array<double, 5>& middleBoxLevels();

    /// Places the ramps for the current size; called automatically on a resize. The area draws the
    /// boxes itself, because their edges may lie between points.
    void layoutSubviews();

 protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

 private:
    TQColorRamp* _rampGray;
    TQColorRamp* _rampGrayFlipped;
};

}  // namespace tonquil
