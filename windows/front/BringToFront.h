// SPDX-License-Identifier: MIT
#pragma once

#include "app/panel/WindowSystem.h"

class QWidget;

namespace tonquil {

/// The workspaces that a window is shown on.
enum class Workspaces : bool { Active, All };

/// Shows a window to the person who asks for it now, even if it is minimised, covered by others or
/// on another workspace, and gives it the keyboard.
void bringToFront(QWidget& window, WindowSystem& windowSystem,
                  Workspaces workspaces = Workspaces::Active);

}  // namespace tonquil
