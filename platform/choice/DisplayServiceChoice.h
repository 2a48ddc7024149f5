// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "foundation/Log.h"
#include "foundation/Problem.h"
#include "foundation/RunLoop.h"
#include "screens/DisplayService.h"

namespace tonquil {

/// Picks the display service for this desktop and opens it; only a program's `main` calls this.
///
/// TONQUIL_DISPLAY_SERVICE=mutter-calibration|kde|wlr|mutter|x11|simulated overrides the choice;
/// the simulated desk is read from the file that TONQUIL_SIMULATED_DESK names, if any. Without a
/// run loop, which must outlive the service, changes of the displays are not watched for. `lost` is
/// called once when the Wayland compositor that lends the displays has gone.
[[nodiscard]] Result<std::unique_ptr<DisplayService>> chooseDisplayService(
    RunLoop* runLoop, const Log& log, const std::function<void()>& lost = {});

/// The services that are built in, in the order in which they are tried, with commas between them.
[[nodiscard]] std::string builtInDisplayServices();

/// Whether this is a Wayland session whose displays can be asked for.
[[nodiscard]] bool isWaylandServed();

}  // namespace tonquil
