// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "screens/Geometry.h"

namespace tonquil {

/// A window's frame as the preferences keep it: "X Y WIDTH HEIGHT", in whole pixels of the
/// top-down desktop space.
[[nodiscard]] std::string textFromWindowFrame(const Rectangle& frame);
/// Nothing where the text is no frame.
[[nodiscard]] std::optional<Rectangle> windowFrameFrom(const std::string& text);

}  // namespace tonquil
