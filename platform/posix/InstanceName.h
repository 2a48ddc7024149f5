// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace tonquil {

/// One instance runs for each desktop of a person: its name, fit for a file.
[[nodiscard]] std::string instanceName();

}  // namespace tonquil
