// SPDX-License-Identifier: MIT
#include "plist/Unicode.h"

#include <array>
#include <cstddef>

namespace tonquil {

namespace {

bool isHighSurrogate(char32_t unit) {
    return unit >= 0xD800 && unit < 0xDC00;
}
bool isLowSurrogate(char32_t unit) {
    return unit >= 0xDC00 && unit < 0xE000;
}

void append(std::string& text, char32_t c) {
    const auto continuation = [c](unsigned shift) {
        return static_cast<char>(0x80U | ((c >> shift) & 0x3FU));
    };
    if (c < 0x80) {
        text += static_cast<char>(c);
    } else if (c < 0x800) {
        text += static_cast<char>(0xC0U | (c >> 6U));
        text += continuation(0);
    } else if (c < 0x10000) {
        text += static_cast<char>(0xE0U | (c >> 12U));
        text += continuation(6);
        text += continuation(0);
    } else {
        text += static_cast<char>(0xF0U | (c >> 18U));
        text += continuation(12);
        text += continuation(6);
        text += continuation(0);
    }
}

}  // namespace

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
    if (c < smallest[length] || c > 0x10FFFF || isHighSurrogate(c) || isLowSurrogate(c)) {
        return std::nullopt;
    }
    text.remove_prefix(length);
    return c;
}

std::optional<std::string> utf8FromUtf16(std::span<const std::uint8_t> bytes) {
    if (bytes.size() % 2 != 0) {
        return std::nullopt;
    }
    std::string text;
    text.reserve(bytes.size());
    const auto unitAt = [bytes](std::size_t at) -> char32_t {
        return (char32_t{bytes[at]} << 8U) | bytes[at + 1];
    };
    for (std::size_t at = 0; at < bytes.size(); at += 2) {
        char32_t c = unitAt(at);
        if (c == 0 || isLowSurrogate(c)) {
            return std::nullopt;
        }
        if (isHighSurrogate(c)) {
            at += 2;
            if (at >= bytes.size() || !isLowSurrogate(unitAt(at))) {
                return std::nullopt;
            }
            c = 0x10000 + ((c - 0xD800) << 10U) + (unitAt(at) - 0xDC00);
        }
        append(text, c);
    }
    return text;
}

bool isPropertyListText(std::string_view text) {
    while (!text.empty()) {
        const auto character = takeCharacter(text);
        if (!character || !isXmlCharacter(*character)) {
            return false;
        }
    }
    return true;
}

}  // namespace tonquil
