// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "cli/Commands.h"
#include "screens/ScreenRegistry.h"

namespace tonquil {

/// What is to be on which display.
using Assignments = std::vector<std::pair<ScreenRegistry::ScreenPointer, KVScreen::CurvePointer>>;

/// The request that has the running Tonquil take these curves over.
[[nodiscard]] std::string requestFor(const Assignments& assignments, DisplayService& service);
/// The request that takes its correction off these displays, all that there are or some of them.
[[nodiscard]] std::string requestToRestore(const ScreenRegistry::Screens& screens, bool areAll,
                                           DisplayService& service);

/// Leaves a request to the Tonquil that is running, where these displays are kept by one program.
/// Nothing if the caller has to carry it out; an empty text if it is done; otherwise the request,
/// to be handed over once the displays have been let go, because just looking at one may have taken
/// it.
[[nodiscard]] Result<std::optional<std::string>> leaveToTonquil(
    std::string request, const ScreenRegistry::Screens& screens, DisplayService& service,
    const CommandEnvironment& environment);

/// Hands a request, if it is not empty, to the running Tonquil; a problem where none runs, or where
/// it cannot do it.
[[nodiscard]] Result<void> handOver(const std::string& request,
                                    const CommandEnvironment& environment);

}  // namespace tonquil
