// SPDX-License-Identifier: MIT
#pragma once

namespace tonquil {

/// Exposes our sliders, tabs and plot, and the toolkit's choices and drop-down lists, to assistive
/// technology with the right roles, names and actions. A program calls this before it makes its
/// first control; ours do in their constructors. Only the first call does anything.
void installAccessibleInterfaces();

}  // namespace tonquil
