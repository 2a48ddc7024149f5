// SPDX-License-Identifier: MIT
#include "app/preferences/WindowFrame.h"

#include <array>
#include <charconv>
#include <cmath>

namespace tonquil {

std::string textFromWindowFrame(const Rectangle& frame) {
    std::string text;
    for (const double part : {frame.x, frame.y, frame.width, frame.height}) {
        text += text.empty() ? "" : " ";
        text += std::to_string(std::lround(part));
    }
    return text;
}

std::optional<Rectangle> windowFrameFrom(const std::string& text) {
    std::array<int, 4> parts{};
    const char* at = text.data();
    const char* const end = at + text.size();
    for (int& part : parts) {
        while (at != end && *at == ' ') {
            ++at;
        }
        const auto [next, error] = std::from_chars(at, end, part);
        if (error != std::errc()) {
            return std::nullopt;
        }
        at = next;
    }
    return Rectangle{static_cast<double>(parts[0]), static_cast<double>(parts[1]),
                     static_cast<double>(parts[2]), static_cast<double>(parts[3])};
}

}  // namespace tonquil
