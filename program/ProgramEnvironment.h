// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "foundation/Problem.h"

namespace tonquil {

/// Writes a line to standard error, under the program's name.
void logLine(std::string_view line);
/// The same with what a problem says.
void report(const Problem& problem);
/// An environment variable; empty where it is not set.
[[nodiscard]] std::string environment(const char* name);
/// The program's own file.
[[nodiscard]] std::filesystem::path programFile();
/// What the desktop starts at login, whether there or not: beside the program, as it is built, or
/// where it is installed.
[[nodiscard]] std::filesystem::path launcherFile();

}  // namespace tonquil
