// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "foundation/Problem.h"
#include "model/GammaTable.h"

namespace tonquil {

/// Appends the first `sampleCount` slots, one a line: index, red, green and blue, separated by
/// tabs, with as many digits (%.9g) as a single-precision number needs to be read back.
void printTable(const GammaTable& table, std::uint32_t sampleCount, std::string& out);

/// Reads what `printTable` makes: exactly `sampleCount` lines with the indices 0 to
/// `sampleCount` - 1 in order.
[[nodiscard]] Result<BaseGamma> readTable(std::string_view text, std::uint32_t sampleCount);

}  // namespace tonquil
