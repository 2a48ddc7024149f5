// SPDX-License-Identifier: MIT
#include "screens/Geometry.h"

namespace tonquil {

bool Rectangle::contains(const Point& point) const {
    return point.x >= x && point.x < x + width && point.y >= y && point.y < y + height;
}

bool Rectangle::contains(const Rectangle& other) const {
    return !isEmpty() && !other.isEmpty() && other.x >= x && other.y >= y &&
           other.x + other.width <= x + width && other.y + other.height <= y + height;
}

bool Rectangle::intersects(const Rectangle& other) const {
    return !isEmpty() && !other.isEmpty() && other.x < x + width && x < other.x + other.width &&
           other.y < y + height && y < other.y + other.height;
}

}  // namespace tonquil
