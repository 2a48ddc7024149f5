// SPDX-License-Identifier: MIT
#include "targets/TQGrayscalePatternArea.h"

#include "targets/GrayscaleTargetLayout.h"
#include "targets/PatternCanvas.h"
#include "targets/TQColorRamp.h"

namespace tonquil {

// Half of full output in the middle, and neighbours a twentieth apart: close enough to reveal a
// tint or a kink at the middle of the curve between two of them, far enough to be distinguishable
// on the dark background. The two steps in the middle of the ramps, 7/15 and 8/15, lie between the
// second box and the fourth.
const std::array<double, 5>& TQGrayscalePatternArea::middleBoxLevels() {
    static constexpr std::array<double, 5> levels = {0.40, 0.45, 0.50, 0.55, 0.60};
    return levels;
}

TQGrayscalePatternArea::TQGrayscalePatternArea(QWidget* parent)
    : QWidget(parent),
      _rampGray(new TQColorRamp(0, this)),
      _rampGrayFlipped(new TQColorRamp(0, this)) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    _rampGrayFlipped->setReversed(true);
    layoutSubviews();
}

void TQGrayscalePatternArea::layoutSubviews() {
    const GrayscaleTargetLayout layout = GrayscaleTargetLayout::forSize(width(), height());
    _rampGrayFlipped->setGeometry(layout.rampGrayFlipped.fromTopOf(height()).toRect());
    _rampGray->setGeometry(layout.rampGray.fromTopOf(height()).toRect());
    update();
}

void TQGrayscalePatternArea::paintEvent(QPaintEvent* /*event*/) {
    PatternCanvas canvas(*this);
    canvas.fillAll(grayOf(darkBackgroundLevel));
    const auto boxes = GrayscaleTargetLayout::forSize(width(), height()).middleBoxes;
    for (std::size_t box = 0; box < boxes.size(); ++box) {
        canvas.fill(boxes.at(box), grayOf(middleBoxLevels().at(box)));
    }
}

void TQGrayscalePatternArea::resizeEvent(QResizeEvent* /*event*/) {
    layoutSubviews();
}

}  // namespace tonquil
