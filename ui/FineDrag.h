// SPDX-License-Identifier: MIT
#pragma once

#include <Qt>
#include <utility>

namespace tonquil {

/// How far a drag along one axis has got: it follows the pointer, at a quarter of its speed while
/// Ctrl is held. Pressing or releasing Ctrl on the way does not make it jump.
class FineDrag {
 public:
    /// The pointer grabs what is at `position`; both in points.
    void begin(double pointer, double position) {
        _pointer = pointer;
        _position = position;
    }
    /// Follows the pointer. Returns false if it has not moved along the axis.
    bool follow(double pointer, Qt::KeyboardModifiers modifiers) {
        const double travel = pointer - std::exchange(_pointer, pointer);
        _position += isFine(modifiers) ? travel * fineSpeed : travel;
        return travel != 0;
    }
    /// Unlimited: a pointer that comes back from beyond an end finds it where it left it.
    [[nodiscard]] double position() const { return _position; }

    [[nodiscard]] static bool isFine(Qt::KeyboardModifiers modifiers) {
        return modifiers.testFlag(Qt::ControlModifier);
    }

 private:
    static constexpr double fineSpeed = 0.25;

    double _pointer = 0;
    double _position = 0;
};

}  // namespace tonquil
