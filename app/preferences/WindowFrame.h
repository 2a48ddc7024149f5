// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "screens/Geometry.h"

namespace tonquil {

/// Formats a window frame for the preferences: "X Y WIDTH HEIGHT", in whole pixels of top-down
/// desktop space.
[[nodiscard]] std::string textFromWindowFrame(const Rectangle& frame);
/// Nothing if the text is not a frame.
[[nodiscard]] std::optional<Rectangle> windowFrameFrom(const std::string& text);

}  // namespace tonquil
