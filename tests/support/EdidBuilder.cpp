// SPDX-License-Identifier: MIT
#include "tests/support/EdidBuilder.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <numeric>
#include <string_view>

namespace tonquil {

namespace {

constexpr std::size_t blockSize = 128;
constexpr std::size_t firstDescriptor = 54;
constexpr std::size_t descriptorSize = 18;
constexpr std::size_t textSize = 13;

using Bytes = std::vector<std::uint8_t>;

std::uint8_t lowByte(std::uint32_t value) {
    return static_cast<std::uint8_t>(value & 0xFFU);
}

// Five bits a letter, A as 1, the first letter highest.
std::uint32_t manufacturerCode(std::string_view letters) {
    std::uint32_t code = 0;
    for (std::size_t index = 0; index < 3; ++index) {
        const char letter = index < letters.size() ? letters[index] : '@';
        code = (code << 5U) | (static_cast<std::uint32_t>(letter - '@') & 0x1FU);
    }
    return code;
}

void putHead(Bytes& edid, const EdidDescription& description) {
    constexpr std::array<std::uint8_t, 8> header{0x00, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x00};
    std::copy(header.begin(), header.end(), edid.begin());
    const auto code = manufacturerCode(description.manufacturer);
    edid[8] = lowByte(code >> 8U);
    edid[9] = lowByte(code);
    edid[10] = lowByte(description.product);
    edid[11] = lowByte(static_cast<std::uint32_t>(description.product) >> 8U);
    for (std::size_t index = 0; index < 4; ++index) {
        edid[12 + index] = lowByte(description.serial >> (8U * index));
    }
    edid[16] = 1;   // Made in the first week
    edid[17] = 31;  // of the year 1990 + 31.
    edid[18] = 1;
    edid[19] = 4;
    edid[20] = 0xA5;  // A digital DisplayPort display of 8 bits a colour.
    edid[21] = description.widthCentimetres;
    edid[22] = description.heightCentimetres;
    edid[23] = 120;   // A gamma of 2.2.
    edid[24] = 0x06;  // An sRGB display whose preferred mode is its own.
    // The chromaticities of sRGB, ten bits each.
    constexpr std::array<std::uint8_t, 10> colours{0xEE, 0x91, 0xA3, 0x54, 0x4C,
                                                   0x99, 0x26, 0x0F, 0x50, 0x54};
    std::copy(colours.begin(), colours.end(), edid.begin() + 25);
    // No established modes (35 to 37) and no standard ones, which 01 01 stands for.
    std::fill(edid.begin() + 38, edid.begin() + 54, std::uint8_t{1});
}

// The preferred mode: 1920x1080 at 60 Hz.
void putTiming(Bytes& edid, std::size_t slot) {
    constexpr std::array<std::uint8_t, descriptorSize> timing{0x02, 0x3A, 0x80, 0x18, 0x71, 0x38,
                                                              0x2D, 0x40, 0x58, 0x2C, 0x45, 0x00,
                                                              0x58, 0x54, 0x21, 0x00, 0x00, 0x1E};
    std::copy(timing.begin(), timing.end(),
              edid.begin() + static_cast<std::ptrdiff_t>(firstDescriptor + slot * descriptorSize));
}

// A text ends with a line feed and is filled with spaces, unless it takes all the room.
void putDescriptor(Bytes& edid, std::size_t slot, std::uint8_t kind, std::string_view text) {
    const std::size_t start = firstDescriptor + slot * descriptorSize;
    edid[start + 3] = kind;
    for (std::size_t index = 0; index < textSize; ++index) {
        const char letter = index < text.size() ? text[index] : index == text.size() ? '\n' : ' ';
        edid[start + 5 + index] = static_cast<std::uint8_t>(letter);
    }
}

void repairEdidChecksum(std::vector<std::uint8_t>& edid) {
    const auto last = edid.begin() + (blockSize - 1);
    const auto sum = std::accumulate(edid.begin(), last, std::uint32_t{0});
    *last = lowByte(0x100U - (sum & 0xFFU));
}

}  // namespace

std::vector<std::uint8_t> buildEdid(const EdidDescription& description) {
    constexpr std::uint8_t serialKind = 0xFF;
    constexpr std::uint8_t nameKind = 0xFC;
    constexpr std::uint8_t unusedKind = 0x10;
    Bytes edid(blockSize, 0);
    putHead(edid, description);
    putTiming(edid, 0);
    std::size_t slot = 1;
    if (description.serialText) {
        putDescriptor(edid, slot++, serialKind, *description.serialText);
    }
    if (description.name) {
        putDescriptor(edid, slot++, nameKind, *description.name);
    }
    for (; slot < 4; ++slot) {
        edid[firstDescriptor + slot * descriptorSize + 3] = unusedKind;
    }
    repairEdidChecksum(edid);
    return edid;
}

}  // namespace tonquil
