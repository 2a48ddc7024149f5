// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <string>
#include <vector>

namespace tonquil {

/// The text of a `Problem` in the user's language: its key with its arguments filled in. Arguments
/// that are translatable texts are translated too.
[[nodiscard]] QString translatedProblem(const std::string& key,
                                        const std::vector<std::string>& arguments);

}  // namespace tonquil
