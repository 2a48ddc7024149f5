// SPDX-License-Identifier: MIT
#include "cli/TableText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>
#include <optional>
#include <string_view>

namespace tonquil {

namespace {

struct TableLine {
    std::uint32_t index = 0;
    std::array<float, GammaTable::channelCount> levels{};
};

/// Takes a number and the white space before it off the front of a line.
template <typename Number>
bool take(std::string_view& line, Number& number) {
    line.remove_prefix(std::min(line.find_first_not_of(" \t\r"), line.size()));
    const auto [end, error] = std::from_chars(line.data(), line.data() + line.size(), number);
    if (error != std::errc()) {
        return false;
    }
    line.remove_prefix(static_cast<std::size_t>(end - line.data()));
    return true;
}

std::optional<TableLine> readLine(std::string_view line) {
    TableLine read;
    if (!take(line, read.index) || !take(line, read.levels[0]) || !take(line, read.levels[1]) ||
        !take(line, read.levels[2]) || line.find_first_not_of(" \t\r") != std::string_view::npos) {
        return std::nullopt;
    }
    return read;
}

}  // namespace

void printTable(const GammaTable& table, std::uint32_t sampleCount, std::string& out) {
    for (std::uint32_t i = 0; i < sampleCount; ++i) {
        std::array<char, 96> line{};
        // The program never leaves the C locale, so the decimal separator is a point.
        const int length = std::snprintf(line.data(), line.size(), "%u\t%.9g\t%.9g\t%.9g\n", i,
                                         static_cast<double>(table.channel(0)[i]),
                                         static_cast<double>(table.channel(1)[i]),
                                         static_cast<double>(table.channel(2)[i]));
        out.append(line.data(), static_cast<std::size_t>(length));
    }
}

std::string levelText(float level) {
    std::array<char, 64> text{};
    const int length = std::snprintf(text.data(), text.size(), "%.6f", static_cast<double>(level));
    return {text.data(), static_cast<std::size_t>(length)};
}

Result<BaseGamma> readTable(std::string_view text, std::uint32_t sampleCount) {
    BaseGamma base{.table = {}, .sampleCount = sampleCount};
    std::uint32_t count = 0;
    for (; !text.empty(); ++count) {
        const auto length = text.find('\n');
        const auto line = readLine(text.substr(0, length));
        if (!line || line->index != count || count >= sampleCount) {
            return problem("Line " + std::to_string(count + 1) +
                           " of the base is not the table's line " + std::to_string(count) +
                           " of " + std::to_string(sampleCount) + ".");
        }
        for (std::size_t c = 0; c < line->levels.size(); ++c) {
            base.table.channel(c)[count] = line->levels[c];
        }
        text.remove_prefix(length == std::string_view::npos ? text.size() : length + 1);
    }
    if (count != sampleCount) {
        return problem("The base has " + std::to_string(count) + " lines; it needs " +
                       std::to_string(sampleCount) + ".");
    }
    return base;
}

}  // namespace tonquil
