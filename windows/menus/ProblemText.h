// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <string>
#include <vector>

#include "app/panel/PanelControls.h"

namespace tonquil {

/// The text of a `Problem` in the user's language: its key with its arguments filled in. Arguments
/// that are translatable texts are translated too.
[[nodiscard]] QString translatedProblem(const std::string& key,
                                        const std::vector<std::string>& arguments);

/// Why the displays of a subject cannot be edited, and what to do about it; empty if they can.
[[nodiscard]] QString obstacleText(const PanelSubject& subject);

}  // namespace tonquil
