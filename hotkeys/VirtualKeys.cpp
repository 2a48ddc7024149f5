// SPDX-License-Identifier: MIT
#include "hotkeys/VirtualKeys.h"

#include <algorithm>
#include <array>

namespace tonquil {

namespace {

struct Key {
    std::uint16_t keyCode;
    std::uint8_t evdevCode;
};

// Key names are those of the US layout.
constexpr auto keys = std::to_array<Key>({
    {0, 30},     // A
    {1, 31},     // S
    {2, 32},     // D
    {3, 33},     // F
    {4, 35},     // H
    {5, 34},     // G
    {6, 44},     // Z
    {7, 45},     // X
    {8, 46},     // C
    {9, 47},     // V
    {10, 86},    // left of Z, on keyboards that have a key there
    {11, 48},    // B
    {12, 16},    // Q
    {13, 17},    // W
    {14, 18},    // E
    {15, 19},    // R
    {16, 21},    // Y
    {17, 20},    // T
    {18, 2},     // 1
    {19, 3},     // 2
    {20, 4},     // 3
    {21, 5},     // 4
    {22, 7},     // 6
    {23, 6},     // 5
    {24, 13},    // =
    {25, 10},    // 9
    {26, 8},     // 7
    {27, 12},    // -
    {28, 9},     // 8
    {29, 11},    // 0
    {30, 27},    // ]
    {31, 24},    // O
    {32, 22},    // U
    {33, 26},    // [
    {34, 23},    // I
    {35, 25},    // P
    {36, 28},    // Return
    {37, 38},    // L
    {38, 36},    // J
    {39, 40},    // '
    {40, 37},    // K
    {41, 39},    // ;
    {42, 43},    // backslash, or the key in its place
    {43, 51},    // comma
    {44, 53},    // /
    {45, 49},    // N
    {46, 50},    // M
    {47, 52},    // .
    {48, 15},    // Tab
    {49, 57},    // Space
    {50, 41},    // `
    {51, 14},    // Backspace
    {53, 1},     // Escape
    {54, 126},   // right Super
    {55, 125},   // left Super
    {56, 42},    // left Shift
    {57, 58},    // Caps Lock
    {58, 56},    // left Alt
    {59, 29},    // left Control
    {60, 54},    // right Shift
    {61, 100},   // right Alt
    {62, 97},    // right Control
    {64, 187},   // F17
    {65, 83},    // keypad .
    {67, 55},    // keypad *
    {69, 78},    // keypad +
    {71, 69},    // Num Lock
    {72, 115},   // Volume Up
    {73, 114},   // Volume Down
    {74, 113},   // Mute
    {75, 98},    // keypad /
    {76, 96},    // keypad Enter
    {78, 74},    // keypad -
    {79, 188},   // F18
    {80, 189},   // F19
    {81, 117},   // keypad =
    {82, 82},    // keypad 0
    {83, 79},    // keypad 1
    {84, 80},    // keypad 2
    {85, 81},    // keypad 3
    {86, 75},    // keypad 4
    {87, 76},    // keypad 5
    {88, 77},    // keypad 6
    {89, 71},    // keypad 7
    {90, 190},   // F20
    {91, 72},    // keypad 8
    {92, 73},    // keypad 9
    {93, 124},   // Yen
    {94, 89},    // the key before the right Shift, on Japanese keyboards
    {95, 95},    // keypad comma, on Japanese keyboards
    {96, 63},    // F5
    {97, 64},    // F6
    {98, 65},    // F7
    {99, 61},    // F3
    {100, 66},   // F8
    {101, 67},   // F9
    {102, 123},  // Eisu, Hanja
    {103, 87},   // F11
    {104, 122},  // Kana, Hangul
    {105, 183},  // F13
    {106, 186},  // F16
    {107, 184},  // F14
    {109, 68},   // F10
    {110, 127},  // Menu
    {111, 88},   // F12
    {113, 185},  // F15
    {114, 110},  // Insert
    {115, 102},  // Home
    {116, 104},  // Page Up
    {117, 111},  // Delete
    {118, 62},   // F4
    {119, 107},  // End
    {120, 60},   // F2
    {121, 109},  // Page Down
    {122, 59},   // F1
    {123, 105},  // Left
    {124, 106},  // Right
    {125, 108},  // Down
    {126, 103},  // Up
});

}  // namespace

std::optional<std::uint8_t> evdevForVirtualKey(std::uint16_t keyCode) {
    const auto* const key = std::find_if(
        keys.begin(), keys.end(), [keyCode](const Key& each) { return each.keyCode == keyCode; });
    return key != keys.end() ? std::optional(key->evdevCode) : std::nullopt;
}

std::optional<std::uint16_t> virtualKeyForEvdev(std::uint32_t evdevCode) {
    const auto* const key = std::find_if(keys.begin(), keys.end(), [evdevCode](const Key& each) {
        return each.evdevCode == evdevCode;
    });
    return key != keys.end() ? std::optional(key->keyCode) : std::nullopt;
}

bool isFunctionKey(std::uint16_t keyCode) {
    switch (keyCode) {
        case VirtualKey::f1:
        case VirtualKey::f2:
        case VirtualKey::f3:
        case VirtualKey::f4:
        case VirtualKey::f5:
        case VirtualKey::f6:
        case VirtualKey::f7:
        case VirtualKey::f8:
        case VirtualKey::f9:
        case VirtualKey::f10:
        case VirtualKey::f11:
        case VirtualKey::f12:
        case VirtualKey::f13:
        case VirtualKey::f14:
        case VirtualKey::f15:
        case VirtualKey::f16:
        case VirtualKey::f17:
        case VirtualKey::f18:
        case VirtualKey::f19:
        case VirtualKey::f20:
        case VirtualKey::home:
        case VirtualKey::end:
        case VirtualKey::pageUp:
        case VirtualKey::pageDown:
        case VirtualKey::leftArrow:
        case VirtualKey::rightArrow:
        case VirtualKey::downArrow:
        case VirtualKey::upArrow:
            return true;
        default:
            return false;
    }
}

bool isModifierKey(std::uint16_t keyCode) {
    return keyCode >= VirtualKey::rightCommand && keyCode <= VirtualKey::function;
}

}  // namespace tonquil
