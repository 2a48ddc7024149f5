// SPDX-License-Identifier: MIT
#include "ui/TQSlider.h"

#include <QAccessible>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <optional>

#include "ui/Accessibility.h"
#include "ui/theme/Drawing.h"
#include "ui/theme/Theme.h"

namespace tonquil {

namespace {

constexpr int rowHeight = 24;
constexpr int preferredSliderWidth = 160;
constexpr int leastWidth = 48;
/// How far from the fill's end, in points, a press still grabs the end.
constexpr double endReach = 3;
/// How far from the notch, in points, a drag still means the neutral value.
constexpr double snapReach = 2;

constexpr double stepPerLine = 0.01;
constexpr double stepPerPixel = 0.005;
// A wheel counts eighths of a degree; a line is 15 degrees.
constexpr float angleOfLine = 120;

// How far a wheel event moves the value; nothing for an event that does not count.
std::optional<float> stepOf(const QWheelEvent& event) {
    // On X11 the pixel delta of a plain wheel is driver-defined. It is only meaningful on devices
    // that scroll in phases.
    const bool isPrecise = event.hasPixelDelta() && event.phase() != Qt::NoScrollPhase;
    if (isPrecise && event.phase() == Qt::ScrollMomentum) {
        return std::nullopt;
    }
    const float delta = isPrecise ? static_cast<float>(event.pixelDelta().y())
                                  : static_cast<float>(event.angleDelta().y()) / angleOfLine;
    const auto step = static_cast<float>(delta * (isPrecise ? stepPerPixel : stepPerLine));
    // The value follows the fingers, whatever the desktop's scroll direction.
    return event.inverted() ? -step : step;
}

float steppedBy(float value, double step) {
    return static_cast<float>(value + step);
}

}  // namespace

TQSlider::TQSlider(QWidget* parent) : QWidget(parent) {
    installAccessibleInterfaces();
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void TQSlider::setFloatValue(float value) {
    if (std::isnan(value)) {
        return;
    }
    const float before = _value;
    _value = std::clamp(value, _minimum, _maximum);
    // Even if unchanged: the auxiliary may show a value beyond the range.
    update();
    if (_value != before && QAccessible::isActive()) {
        QAccessibleValueChangeEvent change(this, static_cast<double>(_value));
        QAccessible::updateAccessibility(&change);
    }
}

void TQSlider::setRange(float minimum, float maximum) {
    if (!std::isfinite(minimum) || !std::isfinite(maximum) || minimum > maximum) {
        return;
    }
    _minimum = minimum;
    _maximum = maximum;
    setFloatValue(_value);
}

void TQSlider::setNeutralValue(float value) {
    if (!std::isnan(value)) {
        _neutralValue = value;
        update();
    }
}

void TQSlider::takeNeutralValue() {
    setFloatValue(_neutralValue);
    sendAction();
}

void TQSlider::setAuxiliary(TQNumericTextField* auxiliary) {
    if (_auxiliary != nullptr && _auxiliary->target() == this) {
        _auxiliary->setTarget(nullptr);
    }
    _auxiliary = auxiliary;
    if (_auxiliary != nullptr) {
        _auxiliary->setTarget(this);
    }
    update();
}

void TQSlider::sendAction() {
    if (_action) {
        _action(*this);
    }
}

void TQSlider::setChannel(Channel channel) {
    _channel = channel;
    update();
}

void TQSlider::incrementValueOf(TQNumericTextField& sender) {
    stepBy(alternateIncrement, sender);
}
void TQSlider::decrementValueOf(TQNumericTextField& sender) {
    stepBy(-alternateIncrement, sender);
}

void TQSlider::stepBy(double step, TQNumericTextField& sender) {
    sender.setFloatValue(steppedBy(sender.floatValue(), step));
    setFloatValue(sender.floatValue());
    sendAction();
}

void TQSlider::_updateToAuxiliaryValue(TQNumericTextField& sender) {
    if (&sender != _auxiliary) {
        return;
    }
    setFloatValue(sender.floatValue());
    sender.setFloatValue(_value);
    sendAction();
}

QSize TQSlider::sizeHint() const {
    return {preferredSliderWidth, rowHeight};
}
QSize TQSlider::minimumSizeHint() const {
    return {leastWidth, rowHeight};
}

double TQSlider::fractionOf(float value) const {
    const double length = static_cast<double>(_maximum) - _minimum;
    return length > 0 ? std::clamp((static_cast<double>(value) - _minimum) / length, 0.0, 1.0) : 0;
}

void TQSlider::paintEvent(QPaintEvent* /*event*/) {
    const Theme& theme = themeOf(*this);
    if (_channel != Channel::None) {
        _cell.setColor(theme.channel(_channel));
    }
    QPainter painter(this);
    painter.setOpacity(isEnabled() ? 1 : disabledOpacity);
    _cell.drawBarInside(
        painter, rect(),
        {.fraction = fractionOf(_value),
         .neutralFraction = fractionOf(_neutralValue),
         .isHighlighted = isEnabled() && (underMouse() || hasFocus() || _isInteracting),
         .isMirrored = isRightToLeft()},
        theme);
    _cell.drawKnob(painter, rect());
    if (hasFocus() && _showsFocusRing) {
        drawRoundedFrame(painter, rect(), fieldRadius, 2, theme.focusRing);
    }
    if (_auxiliary != nullptr) {
        _auxiliary->takeFloatValueFrom(*this);
    }
}

// A fine drag does not snap: it is for the values next to the notch as well.
void TQSlider::takeValueAt(double x, bool isFine) {
    const QRectF track = TQSliderCell::trackInside(rect());
    const double notch =
        TQSliderCell::positionOf(fractionOf(_neutralValue), track, isRightToLeft());
    if (!isFine && std::abs(x - notch) <= snapReach) {
        takeNeutralValue();
        return;
    }
    const double fraction = TQSliderCell::fractionAt(x, track, isRightToLeft());
    const double length = static_cast<double>(_maximum) - _minimum;
    setFloatValue(static_cast<float>(_minimum + fraction * length));
    sendAction();
}

void TQSlider::setInteracting(bool isInteracting) {
    if (_isInteracting == isInteracting) {
        return;
    }
    _isInteracting = isInteracting;
    _followsPointer = false;
    update();
    if (_interactionChanged) {
        _interactionChanged(*this);
    }
}

void TQSlider::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    _showsFocusRing = false;
    setInteracting(true);
    _followsPointer = true;
    const double x = event->position().x();
    const double end = TQSliderCell::positionOf(fractionOf(_value),
                                                TQSliderCell::trackInside(rect()), isRightToLeft());
    // Grabbing the fill's end does not move it yet, and a fine drag starts at the value there is.
    const bool isGrabbed = std::abs(x - end) <= endReach || FineDrag::isFine(event->modifiers());
    _drag.begin(x, isGrabbed ? end : x);
    if (!isGrabbed) {
        takeValueAt(x, false);
    }
}

void TQSlider::mouseMoveEvent(QMouseEvent* event) {
    if (_followsPointer && _drag.follow(event->position().x(), event->modifiers())) {
        takeValueAt(_drag.position(), FineDrag::isFine(event->modifiers()));
    }
}

void TQSlider::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        setInteracting(false);
    }
}

void TQSlider::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    setInteracting(true);
    takeNeutralValue();
}

bool TQSlider::scrollWheel(const QWheelEvent& event) {
    if (event.angleDelta().y() == 0 && event.pixelDelta().y() == 0) {
        // A sideways scroll, or just the start or end of a gesture.
        return false;
    }
    if (const auto step = stepOf(event)) {
        setFloatValue(_value + *step);
        sendAction();
    }
    return true;
}

void TQSlider::wheelEvent(QWheelEvent* event) {
    event->setAccepted(scrollWheel(*event));
}

void TQSlider::keyPressEvent(QKeyEvent* event) {
    if ((event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0) {
        QWidget::keyPressEvent(event);
        return;
    }
    const double sideways = isRightToLeft() ? -alternateIncrement : alternateIncrement;
    float value = _value;
    switch (event->key()) {
        case Qt::Key_Up:
            value = steppedBy(value, alternateIncrement);
            break;
        case Qt::Key_Down:
            value = steppedBy(value, -alternateIncrement);
            break;
        case Qt::Key_Right:
            value = steppedBy(value, sideways);
            break;
        case Qt::Key_Left:
            value = steppedBy(value, -sideways);
            break;
        case Qt::Key_PageUp:
            value = steppedBy(value, pageIncrement);
            break;
        case Qt::Key_PageDown:
            value = steppedBy(value, -pageIncrement);
            break;
        case Qt::Key_Home:
            value = _minimum;
            break;
        case Qt::Key_End:
            value = _maximum;
            break;
        default:
            QWidget::keyPressEvent(event);
            return;
    }
    _showsFocusRing = true;
    setFloatValue(value);
    sendAction();
}

void TQSlider::focusInEvent(QFocusEvent* event) {
    _showsFocusRing = isFocusShown(event->reason(), _showsFocusRing);
    QWidget::focusInEvent(event);
}

void TQSlider::hideEvent(QHideEvent* event) {
    setInteracting(false);
    QWidget::hideEvent(event);
}

void TQSlider::changeEvent(QEvent* event) {
    if (event->type() == QEvent::EnabledChange && !isEnabled()) {
        setInteracting(false);
    }
    QWidget::changeEvent(event);
}

}  // namespace tonquil
