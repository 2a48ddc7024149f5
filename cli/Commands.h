// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <iosfwd>
#include <memory>

#include "cli/Arguments.h"
#include "foundation/Problem.h"
#include "screens/DisplayService.h"

namespace tonquil {

/// Opens the display service of this desktop.
using OpenDisplays = std::function<Result<std::unique_ptr<DisplayService>>()>;

/// Carries out a command; what it has to say goes to `out`. Nothing has changed on any display
/// when it fails before the first table is set, which is wherever the fault lies in what it was
/// given.
[[nodiscard]] Result<void> runCommand(const Arguments& arguments, const OpenDisplays& openDisplays,
                                      std::ostream& out, std::ostream& notes);

[[nodiscard]] Result<void> runDisplays(const Arguments& arguments, DisplayService& service,
                                       std::ostream& out);
[[nodiscard]] Result<void> runApply(const Arguments& arguments, const OpenDisplays& openDisplays,
                                    std::ostream& notes);
[[nodiscard]] Result<void> runRestore(const Arguments& arguments, DisplayService& service,
                                      std::ostream& notes);
[[nodiscard]] Result<void> runRead(const Arguments& arguments, DisplayService& service,
                                   std::ostream& out);
[[nodiscard]] Result<void> runTable(const Arguments& arguments, std::ostream& out);

}  // namespace tonquil
