// SPDX-License-Identifier: MIT
#pragma once

namespace tonquil {

struct Point {
    double x = 0;
    double y = 0;

    bool operator==(const Point&) const = default;
};

/// A rectangle by its origin and size, in pixels of the desktop. Whether y grows downwards (as
/// display bounds do) or upwards is said where one is used.
struct Rectangle {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;

    bool operator==(const Rectangle&) const = default;

    [[nodiscard]] bool isEmpty() const { return !(width > 0 && height > 0); }
    /// The left and lower-numbered edges belong to the rectangle, the other two do not.
    [[nodiscard]] bool contains(const Point& point) const;
    /// Whether `other` lies inside; an empty rectangle lies in none.
    [[nodiscard]] bool contains(const Rectangle& other) const;
    /// Whether the two share more than an edge.
    [[nodiscard]] bool intersects(const Rectangle& other) const;
    [[nodiscard]] Point centre() const { return {x + width * 0.5, y + height * 0.5}; }
};

}  // namespace tonquil
