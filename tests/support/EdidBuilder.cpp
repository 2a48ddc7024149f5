// SPDX-License-Identifier: MIT
#include "tests/support/EdidBuilder.h"

#include <array>
#include <cstddef>
#include <numeric>
#include <string_view>

namespace tonquil {

namespace {

constexpr std::size_t blockSize = 128;

// A digital sRGB display of 60 by 34 cm and 1920x1080 pixels at 60 Hz, made in the first week of
// 2021, with three unused descriptors.
constexpr std::array<std::uint8_t, blockSize> base{
    0x00, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00,
    0x01, 0x1F, 0x01, 0x04, 0xA5, 0x3C, 0x22, 0x78, 0x06, 0xEE, 0x91, 0xA3, 0x54, 0x4C, 0x99, 0x26,
    0x0F, 0x50, 0x54, 0x00, 0x00, 0x00, 0x01, 0x01, 0x01, 0x01, 0x01, 0x01, 0x01, 0x01, 0x01, 0x01,
    0x01, 0x01, 0x01, 0x01, 0x01, 0x01, 0x02, 0x3A, 0x80, 0x18, 0x71, 0x38, 0x2D, 0x40, 0x58, 0x2C,
    0x45, 0x00, 0x58, 0x54, 0x21, 0x00, 0x00, 0x1E, 0x00, 0x00, 0x00, 0x10, 0x00, 0x00, 0x00, 0x00,
    0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x10, 0x00, 0x00,
    0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x10};

std::uint8_t lowByte(std::uint32_t value) {
    return static_cast<std::uint8_t>(value & 0xFFU);
}

// A text ends with a line feed and is filled with spaces, unless it takes all the room.
void putText(std::vector<std::uint8_t>& edid, std::size_t start, std::uint8_t kind,
             std::string_view text) {
    edid[start + 3] = kind;
    for (std::size_t index = 0; index < 13; ++index) {
        const char letter = index < text.size() ? text[index] : index == text.size() ? '\n' : ' ';
        edid[start + 5 + index] = static_cast<std::uint8_t>(letter);
    }
}

}  // namespace

std::vector<std::uint8_t> buildEdid(const EdidDescription& description) {
    std::vector<std::uint8_t> edid(base.begin(), base.end());
    // Five bits a letter, A as 1, the first letter highest.
    std::uint32_t code = 0;
    for (const char letter : description.manufacturer) {
        code = (code << 5U) | (static_cast<std::uint32_t>(letter - '@') & 0x1FU);
    }
    edid[8] = lowByte(code >> 8U);
    edid[9] = lowByte(code);
    for (std::size_t index = 0; index < 2; ++index) {
        edid[10 + index] = lowByte(std::uint32_t{description.product} >> (8U * index));
    }
    for (std::size_t index = 0; index < 4; ++index) {
        edid[12 + index] = lowByte(description.serial >> (8U * index));
    }
    if (description.serialText) {
        putText(edid, 72, 0xFF, *description.serialText);
    }
    if (description.name) {
        putText(edid, 90, 0xFC, *description.name);
    }
    edid.back() = lowByte(0U - std::accumulate(edid.begin(), edid.end() - 1, std::uint32_t{0}));
    return edid;
}

}  // namespace tonquil
