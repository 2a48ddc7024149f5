// SPDX-License-Identifier: MIT
#include "ui/EditablePlot.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

#include "ui/PlotReadout.h"
#include "ui/theme/Drawing.h"
#include "ui/theme/Theme.h"

namespace tonquil {

EditablePlot::EditablePlot(QWidget* parent) : CurvePlot(parent) {
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
}

void EditablePlot::setDraggablePoint(std::optional<CurvePoint> point) {
    if (point != _draggablePoint) {
        letGo();
        _draggablePoint = point;
        update();
    }
}

std::optional<PlotHandles> EditablePlot::handles() const {
    if (!_draggablePoint || !showsCurves()) {
        return std::nullopt;
    }
    const QRectF graph = graphRect();
    const double input = inputOf(*_draggablePoint);
    const std::array<double, 3> outputs = outputsAt(input);
    const auto place = [&](double output) {
        return QPointF(graph.left() + input * graph.width(),
                       graph.bottom() - output * graph.height());
    };
    return PlotHandles({place(outputs[0]), place(outputs[1]), place(outputs[2])});
}

std::optional<EditablePlot::Grip> EditablePlot::gripAt(const QPointF& pointer) const {
    const auto draggable = handles();
    return draggable ? draggable->gripAt(pointer, _preferredChannel) : std::nullopt;
}

void EditablePlot::letGo() {
    if (const auto grip = std::exchange(_grip, std::nullopt); grip && _gripChanged) {
        _gripChanged(*grip, false);
    }
    update();
}

void EditablePlot::paintEvent(QPaintEvent* event) {
    CurvePlot::paintEvent(event);
    QPainter painter(this);
    if (isEnabled() && _pointer && showsCurves()) {
        drawReadout(painter);
        if (const auto draggable = handles()) {
            draggable->draw(painter, themeOf(*this), _grip ? _grip : gripAt(*_pointer));
        }
    }
    if (hasFocus() && _showsFocusRing) {
        drawRoundedFrame(painter, rect(), fieldRadius, 2, themeOf(*this).focusRing);
    }
}

// During a drag it shows the dragged point, wherever the pointer is.
void EditablePlot::drawReadout(QPainter& painter) const {
    const Theme& theme = themeOf(*this);
    const QRectF graph = graphRect();
    double input = (_pointer->x() - graph.left()) / graph.width();
    if (_grip) {
        input = inputOf(*_draggablePoint);
    } else if (input < 0 || input > 1) {
        return;
    } else {
        input = PlotReadout::wholeLevel(input);
    }
    drawHairline(painter, graph.left() + input * graph.width(), graph.top(), graph.height(),
                 Qt::Vertical, theme.secondaryText);
    PlotReadout(input, outputsAt(input)).draw(painter, labelFont(), graph, *_pointer, theme);
}

void EditablePlot::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    _showsFocusRing = false;
    _grip = gripAt(event->position());
    if (_grip) {
        // The point keeps its distance from the pointer, so grabbing it does not move it yet.
        _drag.begin(event->position().y(), handles()->point(*_grip).y());
        if (_gripChanged) {
            _gripChanged(*_grip, true);
        }
    }
    update();
}

void EditablePlot::mouseMoveEvent(QMouseEvent* event) {
    _pointer = event->position();
    if (!event->buttons().testFlag(Qt::LeftButton)) {
        // Another window in front got the release.
        letGo();
    }
    if (_grip && _drag.follow(event->position().y(), event->modifiers()) && _dragged) {
        const QRectF graph = graphRect();
        const double level = (graph.bottom() - _drag.position()) / graph.height();
        _dragged(*_grip, std::clamp(level, 0.0, 1.0));
    }
    const auto shape = _grip || gripAt(*_pointer) ? Qt::SizeVerCursor : Qt::ArrowCursor;
    if (shape != cursor().shape()) {
        setCursor(shape);
    }
    update();
}

void EditablePlot::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        letGo();
    }
}

void EditablePlot::leaveEvent(QEvent* event) {
    _pointer.reset();
    update();
    CurvePlot::leaveEvent(event);
}

void EditablePlot::setSpaceBarDown(bool isDown) {
    if (isDown != std::exchange(_isSpaceBarDown, isDown) && _spaceBarChanged) {
        _spaceBarChanged(isDown);
    }
}

void EditablePlot::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Space) {
        CurvePlot::keyPressEvent(event);
    } else if (!event->isAutoRepeat()) {
        setSpaceBarDown(true);
    }
}

void EditablePlot::keyReleaseEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Space) {
        CurvePlot::keyReleaseEvent(event);
    } else if (!event->isAutoRepeat()) {
        setSpaceBarDown(false);
    }
}

void EditablePlot::focusInEvent(QFocusEvent* event) {
    _showsFocusRing = isFocusShown(event->reason(), _showsFocusRing);
    CurvePlot::focusInEvent(event);
}

void EditablePlot::focusOutEvent(QFocusEvent* event) {
    setSpaceBarDown(false);
    CurvePlot::focusOutEvent(event);
}

void EditablePlot::hideEvent(QHideEvent* event) {
    letGo();
    setSpaceBarDown(false);
    CurvePlot::hideEvent(event);
}

}  // namespace tonquil
