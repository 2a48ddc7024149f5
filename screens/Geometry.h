// SPDX-License-Identifier: MIT
#pragma once

namespace tonquil {

struct Point {
    double x = 0;
    double y = 0;

    bool operator==(const Point&) const = default;
};

/// A rectangle by its origin and size, in desktop pixels. Each use says whether y grows downwards
/// (as display bounds do) or upwards.
struct Rectangle {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;

    bool operator==(const Rectangle&) const = default;

    [[nodiscard]] bool isEmpty() const { return !(width > 0 && height > 0); }
    /// The edges at the origin belong to the rectangle, the other two do not.
    [[nodiscard]] bool contains(const Point& point) const;
    /// Whether `other` lies inside; an empty rectangle never does.
    [[nodiscard]] bool contains(const Rectangle& other) const;
    /// Whether the two overlap by more than an edge.
    [[nodiscard]] bool intersects(const Rectangle& other) const;
    [[nodiscard]] Point centre() const { return {x + width * 0.5, y + height * 0.5}; }
};

}  // namespace tonquil
