// SPDX-License-Identifier: MIT
#include "colourfiles/CalWriter.h"

#include <array>
#include <charconv>

#include "colourfiles/Calibration.h"

namespace tonquil {

namespace {

/// With a decimal point in every locale.
void appendNumber(std::string& text, double number) {
    // Neighbouring entries differ by 0.000015.
    constexpr int digits = 7;
    std::array<char, 16> characters{};
    const auto end = std::to_chars(characters.data(), characters.data() + characters.size(), number,
                                   std::chars_format::fixed, digits);
    text.append(characters.data(), end.ptr);
}

}  // namespace

// The order and the lone blanks at the line ends are those of other programs' files; some readers
// compare more than they need to.
std::string writeCal(const GammaTable& table, const DescribedDisplay& display) {
    std::string text =
        "CAL    \n\n"
        "DESCRIPTOR \"" +
        descriptionOf(display) +
        "\"\n"
        "ORIGINATOR \"Tonquil\"\n"
        "KEYWORD \"DEVICE_CLASS\"\n"
        "DEVICE_CLASS \"DISPLAY\"\n"
        "KEYWORD \"COLOR_REP\"\n"
        "COLOR_REP \"RGB\"\n"
        "KEYWORD \"VIDEO_LUT_CALIBRATION_POSSIBLE\"\n"
        "VIDEO_LUT_CALIBRATION_POSSIBLE \"YES\"\n\n"
        "NUMBER_OF_FIELDS 4\n"
        "BEGIN_DATA_FORMAT\n"
        "RGB_I RGB_R RGB_G RGB_B \n"
        "END_DATA_FORMAT\n\n"
        "NUMBER_OF_SETS 256\n"
        "BEGIN_DATA\n";
    for (std::size_t i = 0; i < GammaTable::capacity; ++i) {
        appendNumber(text, static_cast<double>(i) / (GammaTable::capacity - 1));
        for (std::size_t c = 0; c < GammaTable::channelCount; ++c) {
            text += ' ';
            appendNumber(text, entryOf(static_cast<double>(table.channel(c)[i])) / 65535.0);
        }
        text += " \n";
    }
    return text + "END_DATA\n";
}

}  // namespace tonquil
