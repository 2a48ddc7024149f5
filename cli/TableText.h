// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "foundation/Problem.h"
#include "model/GammaTable.h"

namespace tonquil {

/// Appends the first `sampleCount` slots, one per line: index, red, green and blue, separated by
/// tabs, with enough digits (%.9g) to read a float back exactly.
void printTable(const GammaTable& table, std::uint32_t sampleCount, std::string& out);

/// A level, or a difference of two, with six digits behind the point.
[[nodiscard]] std::string levelText(float level);

/// Parses the output of `printTable`: exactly `sampleCount` lines with the indices 0 to
/// `sampleCount` - 1 in order.
[[nodiscard]] Result<BaseGamma> readTable(std::string_view text, std::uint32_t sampleCount);

}  // namespace tonquil
