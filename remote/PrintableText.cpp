// SPDX-License-Identifier: MIT
#include "remote/PrintableText.h"

#include <array>
#include <cstdint>
#include <cstdio>

#include "values/Utf8.h"

namespace tonquil::remote {

namespace {

/// Whether it is neither a control character nor one that changes text direction or lines.
bool isPlain(char32_t c) {
    return c >= 0x20 && (c < 0x7F || c >= 0xA0) && c != 0x61C && (c < 0x200B || c > 0x200F) &&
           (c < 0x2028 || c > 0x202E) && (c < 0x2066 || c > 0x2069) && c != 0xFEFF &&
           (c < 0xE0000 || c > 0xE007F);
}

void appendEscaped(std::uint32_t code, std::string& text) {
    std::array<char, 16> escaped{};
    // The same escape letters as in C.
    const char* const form = code < 0x100 ? "\\x%02x" : code < 0x10000 ? "\\u%04x" : "\\U%08x";
    const int length = std::snprintf(escaped.data(), escaped.size(), form, code);
    text.append(escaped.data(), static_cast<std::size_t>(length));
}

}  // namespace

std::string printable(std::string_view text, std::size_t mostBytes) {
    std::string result;
    const std::size_t size = text.size();
    while (!text.empty()) {
        std::string_view rest = text;
        const auto character = takeCharacter(rest);
        if (!character) {
            rest.remove_prefix(1);
        }
        if (size - rest.size() > mostBytes) {
            return result += "…";
        }
        if (!character) {
            appendEscaped(static_cast<unsigned char>(text.front()), result);
        } else if (isPlain(*character)) {
            result += text.substr(0, text.size() - rest.size());
        } else {
            appendEscaped(*character, result);
        }
        text = rest;
    }
    return result;
}

}  // namespace tonquil::remote
