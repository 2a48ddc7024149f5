// SPDX-License-Identifier: MIT
#include "platform/edid/Edid.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tonquil {

namespace {

constexpr std::size_t blockSize = 128;
constexpr std::array<std::uint8_t, 8> header{0x00, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x00};

// Four 18-byte descriptors; those that start with three zeros hold text or limits, according to
// their tag.
constexpr std::size_t firstDescriptor = 54;
constexpr std::size_t descriptorSize = 18;
constexpr std::size_t descriptorCount = 4;
constexpr std::uint8_t serialTextTag = 0xFF;
constexpr std::uint8_t productNameTag = 0xFC;

/// The text of the first descriptor with this tag: up to 13 characters, ended by a line feed and
/// padded with spaces.
std::string descriptorText(std::span<const std::uint8_t> block, std::uint8_t tag) {
    for (std::size_t i = 0; i < descriptorCount; ++i) {
        const auto descriptor = block.subspan(firstDescriptor + i * descriptorSize, descriptorSize);
        if (descriptor[0] != 0 || descriptor[1] != 0 || descriptor[2] != 0 ||
            descriptor[3] != tag) {
            continue;
        }
        std::string text;
        for (const std::uint8_t byte : descriptor.subspan(5)) {
            if (byte == '\n') {
                break;
            }
            if (byte >= ' ' && byte < 0x7F) {
                text.push_back(static_cast<char>(byte));
            }
        }
        const auto first = text.find_first_not_of(' ');
        const auto last = text.find_last_not_of(' ');
        return first == std::string::npos ? std::string() : text.substr(first, last - first + 1);
    }
    return {};
}

/// Ten bits each: the upper eight in a byte of their own, the lower two four to a byte.
std::optional<Primaries> primariesIn(std::span<const std::uint8_t> block) {
    constexpr std::size_t lowBitsAt = 25;
    constexpr std::size_t highBitsAt = 27;
    std::array<double, 8> numbers{};
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        const unsigned low = (block[lowBitsAt + i / 4] >> (6 - 2 * (i % 4))) & 3U;
        numbers.at(i) = ((unsigned{block[highBitsAt + i]} << 2U) | low) / 1024.0;
    }
    const auto& [rx, ry, gx, gy, bx, by, wx, wy] = numbers;
    // Some monitors fill in zeros or one colour for all; the triangle of sRGB has an area of 0.11.
    constexpr double leastArea = 0.02;
    const double area = std::abs((gx - rx) * (by - ry) - (bx - rx) * (gy - ry)) / 2;
    if (area < leastArea || wx < 0.1 || wy < 0.1) {
        return std::nullopt;
    }
    return Primaries{.red = {rx, ry}, .green = {gx, gy}, .blue = {bx, by}, .white = {wx, wy}};
}

bool isFiller(std::uint32_t serial) {
    return serial == 0 || serial == 0x01010101U || serial == 0xFFFFFFFFU;
}

}  // namespace

std::optional<Edid> parseEdid(std::span<const std::uint8_t> bytes) {
    if (bytes.size() < blockSize || !std::equal(header.begin(), header.end(), bytes.begin())) {
        return std::nullopt;
    }
    const auto block = bytes.first(blockSize);
    Edid edid;
    edid.vendorNumber = (std::uint32_t{block[8]} << 8U) | block[9];
    edid.modelNumber = (std::uint32_t{block[11]} << 8U) | block[10];
    edid.serialNumber = (std::uint32_t{block[15]} << 24U) | (std::uint32_t{block[14]} << 16U) |
                        (std::uint32_t{block[13]} << 8U) | block[12];
    if (isFiller(edid.serialNumber)) {
        const std::string text = descriptorText(block, serialTextTag);
        edid.serialNumber = text.empty() ? 0 : numberOf(text);
    }
    // One of the two alone is a ratio.
    constexpr double millimetresPerCentimetre = 10;
    if (block[21] != 0 && block[22] != 0) {
        edid.widthInMillimetres = block[21] * millimetresPerCentimetre;
        edid.heightInMillimetres = block[22] * millimetresPerCentimetre;
    }
    edid.productName = descriptorText(block, productNameTag);
    edid.primaries = primariesIn(block);
    return edid;
}

std::uint32_t numberOf(std::string_view text) {
    std::uint32_t hash = 0x811C9DC5U;
    for (const char c : text) {
        hash = (hash ^ static_cast<std::uint8_t>(c)) * 0x01000193U;
    }
    return hash == 0 || hash == 0xFFFFFFFFU ? 1 : hash;
}

bool isBuiltInConnector(std::string_view name) {
    return name.starts_with("eDP") || name.starts_with("LVDS") || name.starts_with("DSI");
}

}  // namespace tonquil
