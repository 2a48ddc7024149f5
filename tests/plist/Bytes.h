// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "plist/PropertyListReader.h"

namespace tonquil {

/// The bytes of a text, including NUL.
[[nodiscard]] inline std::vector<std::uint8_t> bytesOf(std::string_view text) {
    return {text.begin(), text.end()};
}

/// The list as JSON, or "refused".
[[nodiscard]] inline std::string read(std::string_view text) {
    const auto value = readPropertyList(bytesOf(text));
    return value ? value->dump() : "refused";
}

/// Splits a text at separators, keeping empty pieces.
[[nodiscard]] inline std::vector<std::string> split(std::string_view text,
                                                    std::string_view separator) {
    std::vector<std::string> pieces;
    for (std::size_t end = text.find(separator); end != std::string_view::npos;
         end = text.find(separator)) {
        pieces.emplace_back(text.substr(0, end));
        text.remove_prefix(end + separator.size());
    }
    pieces.emplace_back(text);
    return pieces;
}

/// The cells of a table, several per line.
[[nodiscard]] inline std::vector<std::string> cellsOf(std::string_view table) {
    std::vector<std::string> cells;
    for (const std::string& line : split(table, "\n")) {
        const auto inLine = split(line, " | ");
        cells.insert(cells.end(), inLine.begin(), inLine.end());
    }
    return cells;
}

/// A big-endian number of `size` bytes.
[[nodiscard]] inline std::string bigEndianBytes(std::uint64_t value, std::size_t size) {
    std::string text;
    for (std::size_t i = size; i-- > 0;) {
        text += static_cast<char>((value >> (8 * i)) & 0xFFU);
    }
    return text;
}

/// Decodes hexadecimal digits.
[[nodiscard]] inline std::string bytesFromHex(std::string_view hex) {
    std::string bytes;
    for (; !hex.empty(); hex.remove_prefix(2)) {
        bytes += static_cast<char>(std::stoi(std::string(hex.substr(0, 2)), nullptr, 16));
    }
    return bytes;
}

/// Builds a binary property list from objects in hexadecimal digits, separated by spaces; its
/// fields may be deliberately wrong.
[[nodiscard]] inline std::string binaryList(const std::string& objects, std::size_t offsetSize = 1,
                                            std::size_t referenceSize = 1, std::uint64_t top = 0) {
    std::string out = "bplist00";
    std::string table;
    for (const std::string& object : split(objects, " ")) {
        table += bigEndianBytes(out.size(), offsetSize);
        out += bytesFromHex(object);
    }
    const std::string trailer = bigEndianBytes(offsetSize, 7) + bigEndianBytes(referenceSize, 1) +
                                bigEndianBytes(table.size() / offsetSize, 8) +
                                bigEndianBytes(top, 8);
    return out + table + trailer + bigEndianBytes(out.size(), 8);
}

}  // namespace tonquil
