// SPDX-License-Identifier: MIT
#include "plist/Base64.h"

#include "plist/NumberText.h"

namespace tonquil {

namespace {

constexpr std::string_view alphabet =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

}  // namespace

std::optional<std::vector<std::uint8_t>> bytesFromBase64(std::string_view text) {
    std::vector<std::uint8_t> bytes;
    bytes.reserve(text.size() / 4 * 3);
    std::uint32_t bits = 0;
    std::size_t digits = 0;
    std::size_t padding = 0;
    for (const char c : text) {
        if (isXmlSpace(c)) {
            continue;
        }
        if (c == '=') {
            ++padding;
            continue;
        }
        const auto digit = alphabet.find(c);
        if (digit == std::string_view::npos || padding > 0) {
            return std::nullopt;
        }
        bits = (bits << 6U) | static_cast<std::uint32_t>(digit);
        if (++digits % 4 != 1) {
            const auto unused = static_cast<unsigned>(6 - 2 * ((digits - 1) % 4));
            bytes.push_back(static_cast<std::uint8_t>(bits >> unused));
            bits &= (1U << unused) - 1U;
        }
    }
    const std::size_t wanted = (4 - digits % 4) % 4;
    if (wanted == 3 || padding != wanted || bits != 0) {
        return std::nullopt;
    }
    return bytes;
}

std::string base64FromBytes(std::span<const std::uint8_t> bytes) {
    std::string text;
    text.reserve((bytes.size() + 2) / 3 * 4);
    for (std::size_t i = 0; i < bytes.size(); i += 3) {
        const std::size_t count = std::min<std::size_t>(3, bytes.size() - i);
        std::uint32_t bits = 0;
        for (std::size_t k = 0; k < 3; ++k) {
            bits = (bits << 8U) | (k < count ? bytes[i + k] : 0U);
        }
        for (std::size_t k = 0; k < 4; ++k) {
            text += k <= count ? alphabet[(bits >> (18U - 6U * k)) & 63U] : '=';
        }
    }
    return text;
}

}  // namespace tonquil
