// SPDX-License-Identifier: MIT
#include "cli/TableText.h"

#include <array>
#include <cstdio>
#include <ostream>
#include <sstream>

namespace tonquil {

void printTable(const GammaTable& table, std::uint32_t sampleCount, std::ostream& out) {
    for (std::uint32_t i = 0; i < sampleCount; ++i) {
        std::array<char, 96> line{};
        // The program never leaves the C locale, so the decimal point is a point.
        const int length = std::snprintf(line.data(), line.size(), "%u\t%.9g\t%.9g\t%.9g\n", i,
                                         static_cast<double>(table.channel(0)[i]),
                                         static_cast<double>(table.channel(1)[i]),
                                         static_cast<double>(table.channel(2)[i]));
        out.write(line.data(), length);
    }
}

Result<BaseGamma> readTable(const std::string& text, std::uint32_t sampleCount) {
    BaseGamma base{.table = {}, .sampleCount = sampleCount};
    std::istringstream lines(text);
    std::string line;
    std::uint32_t count = 0;
    for (; std::getline(lines, line); ++count) {
        std::istringstream fields(line);
        std::uint32_t index = 0;
        std::array<float, 3> levels{};
        fields >> index >> levels[0] >> levels[1] >> levels[2];
        if (!fields || !(fields >> std::ws).eof() || index != count || count >= sampleCount) {
            return problem("Line " + std::to_string(count + 1) +
                           " of the base is not the table's line " + std::to_string(count) +
                           " of " + std::to_string(sampleCount) + ".");
        }
        for (std::size_t c = 0; c < levels.size(); ++c) {
            base.table.channel(c)[index] = levels[c];
        }
    }
    if (count != sampleCount) {
        return problem("The base has " + std::to_string(count) + " lines; it needs " +
                       std::to_string(sampleCount) + ".");
    }
    return base;
}

}  // namespace tonquil
