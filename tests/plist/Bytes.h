// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tonquil {

/// The bytes of a text, of which every one counts.
[[nodiscard]] inline std::vector<std::uint8_t> bytesOf(std::string_view text) {
    return {text.begin(), text.end()};
}

/// UTF-16 of ASCII text.
[[nodiscard]] inline std::string utf16(std::string_view ascii, bool bigEndian, bool mark) {
    std::string text;
    const auto append = [&](char high, char low) {
        text += bigEndian ? high : low;
        text += bigEndian ? low : high;
    };
    if (mark) {
        append('\xFE', '\xFF');
    }
    for (const char c : ascii) {
        append('\0', c);
    }
    return text;
}

/// A binary property list under construction: what its fields say may well be untrue.
struct BinaryList {
    std::vector<std::string> objects;
    std::size_t offsetSize = 1;
    std::size_t referenceSize = 1;
    std::uint64_t top = 0;

    [[nodiscard]] static std::string number(std::uint64_t value, std::size_t size) {
        std::string text;
        for (std::size_t i = size; i-- > 0;) {
            text += i < 8 ? static_cast<char>((value >> (8 * i)) & 0xFFU) : '\0';
        }
        return text;
    }

    [[nodiscard]] std::string bytes() const {
        std::string out = "bplist00";
        std::string table;
        for (const std::string& object : objects) {
            table += number(out.size(), offsetSize);
            out += object;
        }
        const std::size_t tableOffset = out.size();
        return out + table + std::string(6, '\0') + number(offsetSize, 1) +
               number(referenceSize, 1) + number(objects.size(), 8) + number(top, 8) +
               number(tableOffset, 8);
    }
};

}  // namespace tonquil
