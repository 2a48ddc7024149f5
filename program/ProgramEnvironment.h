// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "foundation/Problem.h"

namespace tonquil {

/// Writes a line to standard error, under the program's name.
void logLine(std::string_view line);
/// The same with a problem's sentence and, if there is one, its detail.
void report(const Problem& problem);
/// An environment variable; empty if it is not set.
[[nodiscard]] std::string environment(const char* name);
/// The program's own file.
[[nodiscard]] std::filesystem::path programFile();
/// The launcher, which the desktop starts at login: next to the program, as in the build folder, or
/// else where it is installed, whether it exists there or not.
[[nodiscard]] std::filesystem::path launcherFile();

}  // namespace tonquil
