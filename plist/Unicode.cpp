// SPDX-License-Identifier: MIT
#include "plist/Unicode.h"

#include <cstddef>

#include "values/Utf8.h"

namespace tonquil {

namespace {

bool isHighSurrogate(char32_t unit) {
    return unit >= 0xD800 && unit < 0xDC00;
}
bool isLowSurrogate(char32_t unit) {
    return unit >= 0xDC00 && unit < 0xE000;
}

}  // namespace

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
        appendUtf8(text, c);
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
