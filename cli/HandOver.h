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

/// Hands a request to the running Tonquil; a problem where none runs, or where it cannot do it.
[[nodiscard]] Result<void> handOver(const std::string& request,
                                    const CommandEnvironment& environment);

}  // namespace tonquil
