// SPDX-License-Identifier: MIT
#include "tests/support/EdidBuilder.h"

#include <numeric>
#include <string_view>

namespace tonquil {

namespace {

// A text ends with a line feed and is padded with spaces, unless it fills the field.
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
    // A digital sRGB display of 60 by 34 cm and 1920x1080 pixels at 60 Hz, made in the first week
    // of 2021. Then follow three unused descriptors, no extension and the checksum.
    std::vector<std::uint8_t> edid{
        0x00, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00,
        0x00, 0x01, 0x1F, 0x01, 0x04, 0xA5, 0x3C, 0x22, 0x78, 0x06, 0xEE, 0x91, 0xA3, 0x54, 0x4C,
        0x99, 0x26, 0x0F, 0x50, 0x54, 0x00, 0x00, 0x00, 0x01, 0x01, 0x01, 0x01, 0x01, 0x01, 0x01,
        0x01, 0x01, 0x01, 0x01, 0x01, 0x01, 0x01, 0x01, 0x01, 0x02, 0x3A, 0x80, 0x18, 0x71, 0x38,
        0x2D, 0x40, 0x58, 0x2C, 0x45, 0x00, 0x58, 0x54, 0x21, 0x00, 0x00, 0x1E};
    edid.resize(128);
    edid[75] = edid[93] = edid[111] = 0x10;
    const auto putNumber = [&edid](std::size_t start, std::uint32_t number, std::size_t size) {
        for (std::size_t index = 0; index < size; ++index) {
            edid[start + index] = static_cast<std::uint8_t>(number >> (8U * index));
        }
    };
    // Five bits per letter, A as 1, the first letter highest.
    std::uint32_t code = 0;
    for (const char letter : description.manufacturer) {
        code = (code << 5U) | (static_cast<std::uint32_t>(letter - '@') & 0x1FU);
    }
    putNumber(8, code >> 8U, 1);
    putNumber(9, code & 0xFFU, 1);
    putNumber(10, description.product, 2);
    putNumber(12, description.serial, 4);
    if (description.serialText) {
        putText(edid, 72, 0xFF, *description.serialText);
    }
    if (description.name) {
        putText(edid, 90, 0xFC, *description.name);
    }
    putNumber(127, 0U - std::accumulate(edid.begin(), edid.end(), std::uint32_t{0}), 1);
    return edid;
}

}  // namespace tonquil
