// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>
#include <cstdint>

namespace tonquil {

/// A display that a target may cover.
struct TargetScreen {
    std::uint32_t displayID = 0;
    /// All of it, in the toolkit's points. No rectangle stands for a display that is missing.
    QRect frame;

    /// Whether both mean one display: they have the same number, or the same place.
    [[nodiscard]] bool isSameAs(const TargetScreen& other) const {
        return displayID == other.displayID || frame == other.frame;
    }

    friend bool operator==(const TargetScreen&, const TargetScreen&) = default;
};

}  // namespace tonquil
