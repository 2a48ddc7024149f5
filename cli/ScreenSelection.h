// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "foundation/Problem.h"
#include "screens/ScreenRegistry.h"

namespace tonquil {

/// The screens with the given reference IDs or connectors, or all if none are given. A problem if a
/// name matches no attached display.
[[nodiscard]] Result<ScreenRegistry::Screens> meantScreens(ScreenRegistry& registry,
                                                           const std::vector<std::string>& names);

/// The screens with the given reference IDs or connectors, or all if none are given, except those
/// that cannot be corrected.
///
/// A problem if a name matches no attached display, if a named display cannot be corrected, or if
/// no screen is left. A display that was not named and cannot be corrected only gets a note.
[[nodiscard]] Result<ScreenRegistry::Screens> selectScreens(ScreenRegistry& registry,
                                                            DisplayService& service,
                                                            const std::vector<std::string>& names,
                                                            std::string& notes);

/// Whether a correction on one of these screens ends with the program that set it.
[[nodiscard]] bool endsWithItsProgram(const ScreenRegistry::Screens& screens,
                                      DisplayService& service);

/// The first listed screen with this reference ID or connector; a problem if there is none.
[[nodiscard]] Result<ScreenRegistry::ScreenPointer> screenNamed(ScreenRegistry& registry,
                                                                const std::string& name);

/// The screen with the last of these names or, without any, the main display's.
[[nodiscard]] Result<ScreenRegistry::ScreenPointer> screenOrMain(
    ScreenRegistry& registry, const std::vector<std::string>& names);

}  // namespace tonquil
