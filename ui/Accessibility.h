// SPDX-License-Identifier: MIT
#pragma once

namespace tonquil {

/// Lets assistive technology find sliders, tabs and the plot for what they are. Our controls call
/// it as they are made; only the first call does anything.
void installAccessibleInterfaces();

}  // namespace tonquil
