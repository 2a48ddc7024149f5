// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "foundation/Problem.h"
#include "tests/support/XServer.h"

namespace tonquil {

/// Starts a private X server on which DUMMY0, DUMMY1 and DUMMY2 are lit side by side.
[[nodiscard]] Result<std::unique_ptr<XServer>> startThreeDisplays();

}  // namespace tonquil
