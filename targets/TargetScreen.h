// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>
#include <cstdint>

namespace tonquil {

/// A display that a target may cover.
struct TargetScreen {
    std::uint32_t displayID = 0;
    /// The whole display, in Qt's points. An empty rectangle means that the display is missing.
    QRect frame;

    /// Whether both are the same display: same number or same position.
    [[nodiscard]] bool isSameAs(const TargetScreen& other) const {
        return displayID == other.displayID || frame == other.frame;
    }

    friend bool operator==(const TargetScreen&, const TargetScreen&) = default;
};

}  // namespace tonquil
