// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace tonquil {

/// The name of this desktop's instance, usable as a file name. Each desktop of a user has one.
[[nodiscard]] std::string instanceName();

}  // namespace tonquil
