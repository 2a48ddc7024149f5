// SPDX-License-Identifier: MIT
#pragma once

#include <QRectF>

namespace tonquil {

/// A rectangle of a pattern, in points or device pixels: (`x`, `y`) is its lower left corner, and y
/// grows upward from the lower edge of the view.
struct PatternFrame {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;

    /// Also true for a negative size, as in a view too small for its content.
    [[nodiscard]] bool isEmpty() const { return !(width > 0 && height > 0); }

    /// Shrunk by `dx` on the left and right, and by `dy` at the top and bottom.
    [[nodiscard]] PatternFrame insetBy(double dx, double dy) const {
        return {x + dx, y + dy, width - 2 * dx, height - 2 * dy};
    }

    /// Rotated by 180 degrees around the middle of a view of this size.
    [[nodiscard]] PatternFrame turnedIn(const PatternFrame& view) const {
        return {view.width - x - width, view.height - y - height, width, height};
    }

    /// The same rectangle in Qt's coordinates: y grows downward from the view's upper edge. The
    /// only place where the direction changes.
    [[nodiscard]] QRectF fromTopOf(double viewHeight) const {
        return {x, viewHeight - y - height, width, height};
    }

    friend bool operator==(const PatternFrame&, const PatternFrame&) = default;
};

}  // namespace tonquil
