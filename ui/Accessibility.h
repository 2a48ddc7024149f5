// SPDX-License-Identifier: MIT
#pragma once

namespace tonquil {

/// Exposes sliders, tabs and the plot to assistive technology with the right roles. Our controls
/// call this in their constructors; only the first call does anything.
void installAccessibleInterfaces();

}  // namespace tonquil
