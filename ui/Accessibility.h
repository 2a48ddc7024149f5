// SPDX-License-Identifier: MIT
#pragma once

namespace tonquil {

/// Exposes our sliders, tabs and plot, and the toolkit's choices and drop-down lists, to assistive
/// technology with the right roles, names and actions. Our controls call this in their
/// constructors; only the first call does anything.
void installAccessibleInterfaces();

}  // namespace tonquil
