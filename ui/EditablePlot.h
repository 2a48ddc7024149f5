// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <utility>

#include "ui/CurvePlot.h"
#include "ui/FineDrag.h"
#include "ui/PlotHandles.h"

namespace tonquil {

/// A plot that reads out the value under the pointer, and whose points can be dragged up and down.
/// It moves no curve itself: its owner does, and sets the new curves.
class EditablePlot : public CurvePlot {
 public:
    using Grip = PlotHandles::Grip;

    explicit EditablePlot(QWidget* parent = nullptr);

    /// Which point of each curve can be dragged, or nothing. A change ends a drag.
    void setDraggablePoint(std::optional<CurvePoint> point);
    /// The channel that is grabbed where its point lies together with others.
    void setPreferredChannel(Channel channel) { _preferredChannel = channel; }
    /// Called when a point is grabbed and let go.
    void setGripChanged(std::function<void(const Grip&, bool isHeld)> changed) {
        _gripChanged = std::move(changed);
    }
    /// Ends a drag although the mouse button is down.
    void letGo();
    /// Called with the level, 0 to 1, that the grabbed point is dragged to.
    void setDragged(std::function<void(const Grip&, double level)> dragged) {
        _dragged = std::move(dragged);
    }
    /// Called when the space bar goes down on the plot, and when it goes up or the focus goes.
    void setSpaceBarChanged(std::function<void(bool isDown)> changed) {
        _spaceBarChanged = std::move(changed);
    }

 protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void hideEvent(QHideEvent* event) override;

 private:
    /// Nothing if no point can be dragged.
    [[nodiscard]] std::optional<PlotHandles> handles() const;
    [[nodiscard]] std::optional<Grip> gripAt(const QPointF& pointer) const;
    void drawReadout(QPainter& painter) const;
    void setSpaceBarDown(bool isDown);

    /// Where the pointer hovers.
    std::optional<QPointF> _pointer;
    std::optional<CurvePoint> _draggablePoint;
    Channel _preferredChannel = Channel::Master;
    /// What is dragged, and where to, in points from the top.
    std::optional<Grip> _grip;
    FineDrag _drag;
    bool _isSpaceBarDown = false;
    bool _showsFocusRing = false;
    std::function<void(const Grip&, bool)> _gripChanged;
    std::function<void(const Grip&, double)> _dragged;
    std::function<void(bool)> _spaceBarChanged;
};

}  // namespace tonquil
