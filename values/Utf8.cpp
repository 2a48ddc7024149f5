// SPDX-License-Identifier: MIT
#include "values/Utf8.h"

#include <array>
#include <cstddef>

namespace tonquil {

std::optional<char32_t> takeCharacter(std::string_view& text) {
    const auto first = static_cast<unsigned char>(text.front());
    if (first < 0x80) {
        text.remove_prefix(1);
        return first;
    }
    const std::size_t length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
    if (first < 0xC2 || first > 0xF4 || text.size() < length) {
        return std::nullopt;
    }
    char32_t c = first & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i) {
        const auto next = static_cast<unsigned char>(text[i]);
        if ((next & 0xC0U) != 0x80U) {
            return std::nullopt;
        }
        c = (c << 6U) | (next & 0x3FU);
    }
    constexpr std::array<char32_t, 5> smallest = {0, 0, 0x80, 0x800, 0x10000};
    if (c < smallest[length] || c > 0x10FFFF || (c >= 0xD800 && c < 0xE000)) {
        return std::nullopt;
    }
    text.remove_prefix(length);
    return c;
}

bool isUtf8(std::string_view bytes) {
    while (!bytes.empty()) {
        if (!takeCharacter(bytes)) {
            return false;
        }
    }
    return true;
}

void appendUtf8(std::string& text, char32_t character) {
    const auto continuation = [character](unsigned shift) {
        return static_cast<char>(0x80U | ((character >> shift) & 0x3FU));
    };
    if (character < 0x80) {
        text += static_cast<char>(character);
    } else if (character < 0x800) {
        text += static_cast<char>(0xC0U | (character >> 6U));
        text += continuation(0);
    } else if (character < 0x10000) {
        text += static_cast<char>(0xE0U | (character >> 12U));
        text += continuation(6);
        text += continuation(0);
    } else {
        text += static_cast<char>(0xF0U | (character >> 18U));
        text += continuation(12);
        text += continuation(6);
        text += continuation(0);
    }
}

}  // namespace tonquil
