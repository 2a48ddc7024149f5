// SPDX-License-Identifier: MIT
#include "remote/Unicode.h"

#include <array>
#include <cstdint>
#include <cstdio>

namespace tonquil::remote {

namespace {

struct Character {
    char32_t code = 0;
    /// In bytes; 0 where the text does not begin with a character.
    std::size_t length = 0;
};

Character firstCharacter(std::string_view text) {
    const auto first = static_cast<unsigned char>(text.front());
    if (first < 0x80) {
        return {first, 1};
    }
    const std::size_t length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
    if (first < 0xC2 || first > 0xF4 || text.size() < length) {
        return {};
    }
    char32_t code = first & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i) {
        const auto next = static_cast<unsigned char>(text[i]);
        if ((next & 0xC0U) != 0x80U) {
            return {};
        }
        code = (code << 6U) | (next & 0x3FU);
    }
    constexpr std::array<char32_t, 5> smallest{0, 0, 0x80, 0x800, 0x10000};
    const bool isSurrogate = code >= 0xD800 && code < 0xE000;
    return code < smallest[length] || code > 0x10FFFF || isSurrogate ? Character{}
                                                                     : Character{code, length};
}

/// Controls, and what changes the direction or the lines of the text around it.
bool isPlain(char32_t c) {
    return c >= 0x20 && (c < 0x7F || c >= 0xA0) && c != 0x61C && (c < 0x200B || c > 0x200F) &&
           (c < 0x2028 || c > 0x202E) && (c < 0x2066 || c > 0x2069) && c != 0xFEFF &&
           (c < 0xE0000 || c > 0xE007F);
}

void appendEscaped(std::uint32_t code, std::string& text) {
    std::array<char, 16> escaped{};
    // The same letters as in C.
    const char* const form = code < 0x100 ? "\\x%02x" : code < 0x10000 ? "\\u%04x" : "\\U%08x";
    const int length = std::snprintf(escaped.data(), escaped.size(), form, code);
    text.append(escaped.data(), static_cast<std::size_t>(length));
}

}  // namespace

bool isUtf8(std::string_view bytes) {
    while (!bytes.empty()) {
        const std::size_t length = firstCharacter(bytes).length;
        if (length == 0) {
            return false;
        }
        bytes.remove_prefix(length);
    }
    return true;
}

std::string printable(std::string_view text, std::size_t mostBytes) {
    std::string result;
    for (std::size_t taken = 0; taken < text.size();) {
        const auto [code, length] = firstCharacter(text.substr(taken));
        if (taken + length > mostBytes || taken == mostBytes) {
            return result += "…";
        }
        if (length == 0) {
            appendEscaped(static_cast<unsigned char>(text[taken]), result);
        } else if (isPlain(code)) {
            result += text.substr(taken, length);
        } else {
            appendEscaped(code, result);
        }
        taken += length == 0 ? 1 : length;
    }
    return result;
}

}  // namespace tonquil::remote
