// SPDX-License-Identifier: MIT
#pragma once

#include <QRectF>

namespace tonquil {

/// A rectangle of a pattern, in points or in device pixels: (`x`, `y`) is its lower left corner,
/// and y grows upward from the lower edge of the view.
struct PatternFrame {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;

    /// Also true when a size is negative, as that of a view too small for its content.
    [[nodiscard]] bool isEmpty() const { return !(width > 0 && height > 0); }

    /// Smaller by `dx` at the left and the right, and by `dy` above and below.
    [[nodiscard]] PatternFrame insetBy(double dx, double dy) const {
        return {x + dx, y + dy, width - 2 * dx, height - 2 * dy};
    }

    /// Turned by half a turn around the middle of a view of this size.
    [[nodiscard]] PatternFrame turnedIn(const PatternFrame& view) const {
        return {view.width - x - width, view.height - y - height, width, height};
    }

    /// The same rectangle as the toolkit counts: y grows downward from the view's upper edge. This
    /// is the only place where the direction changes.
    [[nodiscard]] QRectF fromTopOf(double viewHeight) const {
        return {x, viewHeight - y - height, width, height};
    }

    friend bool operator==(const PatternFrame&, const PatternFrame&) = default;
};

}  // namespace tonquil
