// SPDX-License-Identifier: MIT
#pragma once

namespace tonquil {

/// What a control corrects: all channels together (master) or one of them.
///
/// `None` marks a control that belongs to no channel and keeps its own colour.
enum class Channel { None = -1, Master = 0, Red, Green, Blue };

}  // namespace tonquil
