// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <string>
#include <vector>

namespace tonquil {

/// What a `Problem` says in the person's language: its key and its arguments. An argument that is a
/// translatable text is translated too.
[[nodiscard]] QString translatedProblem(const std::string& key,
                                        const std::vector<std::string>& arguments);

}  // namespace tonquil
