// SPDX-License-Identifier: MIT
#include "targets/TQColorRamp.h"

#include <array>
#include <cmath>

#include "targets/PatternCanvas.h"
#include "targets/RampSteps.h"

namespace tonquil {

namespace {

struct Band {
    PatternFrame frame;
    QColor full;
};

/// In drawing order, because they overlap in a ramp one point high. The outer two are rounded up.
std::array<Band, 3> bandsOf(const PatternFrame& content) {
    const auto& [x, y, width, height] = content;
    const double third = std::ceil(height / 3);
    return {{{{x, y + height - third, width, third}, QColor(255, 0, 0)},
             {{x, y + third, width, height - 2 * third}, QColor(0, 255, 0)},
             {{x, y, width, third}, QColor(0, 0, 255)}}};
}

class RampDrawing {
 public:
    RampDrawing(PatternCanvas& canvas, bool isReversed)
        : _canvas(canvas), _isReversed(isReversed) {}

    void drawSteps(const Band& band) {
        const auto& [x, y, width, height] = band.frame;
        for (int step = 0; step < rampStepCount; ++step) {
            const double left = rampStepBoundary(step, x, width);
            const double right = rampStepBoundary(step + 1, x, width);
            const double level = rampStepLevel(step);
            const auto part = [level](int component) {
                return static_cast<int>(std::lround(component * level));
            };
            _canvas.fill(turned({left, y, right - left, height}),
                         {part(band.full.red()), part(band.full.green()), part(band.full.blue())});
        }
    }

    void drawSmooth(const Band& band) {
        _canvas.fillFromBlack(turned(band.frame), band.full, _isReversed);
    }

 private:
    [[nodiscard]] PatternFrame turned(const PatternFrame& frame) const {
        return _isReversed ? frame.turnedIn(_canvas.bounds()) : frame;
    }

    PatternCanvas& _canvas;
    bool _isReversed;
};

}  // namespace

TQColorRamp::TQColorRamp(std::uint32_t variant, QWidget* parent)
    : QWidget(parent), _variant(variant) {
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void TQColorRamp::setVariant(std::uint32_t variant) {
    _variant = variant;
    update();
}

void TQColorRamp::setReversed(bool reversed) {
    _reversed = reversed;
    update();
}

void TQColorRamp::paintEvent(QPaintEvent* /*event*/) {
    PatternCanvas canvas(*this);
    canvas.fillBorder();
    const PatternFrame content = canvas.content();
    if (content.isEmpty()) {
        return;
    }
    RampDrawing drawing(canvas, _reversed);
    switch (_variant) {
        case 0:
            drawing.drawSteps({content, Qt::white});
            break;
        case 1:
            for (const Band& band : bandsOf(content)) {
                drawing.drawSteps(band);
            }
            break;
        case 2:
            drawing.drawSmooth({content, Qt::white});
            break;
        case 3:
            for (const Band& band : bandsOf(content)) {
                drawing.drawSmooth(band);
            }
            break;
        default:
            break;
    }
}

}  // namespace tonquil
