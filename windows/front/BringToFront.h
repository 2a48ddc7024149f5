// SPDX-License-Identifier: MIT
#pragma once

#include "app/panel/WindowSystem.h"

class QWidget;

namespace tonquil {

/// The workspaces a window is shown on.
enum class Workspaces : bool { Active, All };

/// Shows a window on user request, even if it is minimised, covered or on another workspace, and
/// gives it the keyboard focus.
void bringToFront(QWidget& window, WindowSystem& windowSystem,
                  Workspaces workspaces = Workspaces::Active);

}  // namespace tonquil
