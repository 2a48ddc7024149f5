// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>

#include "app/panel/PanelActions.h"
#include "app/panel/PanelValues.h"

namespace tonquil {

/// The value that makes `slider` put the plotted curve of a channel (0 red, 1 green, 2 blue)
/// through `level` (0 to 1) at the slider's own point: at input 0 for black, 0.5 for middle, 1 for
/// white. The slider is that channel's or a master.
///
/// It may lie outside of the slider's range; nothing if no value does it. `values` are the present
/// ones and `curves` what they give.
[[nodiscard]] std::optional<float> valueThrough(double level, PanelSlider slider,
                                                std::size_t channel, const PanelValues& values,
                                                const PlottedCurves& curves);

}  // namespace tonquil
