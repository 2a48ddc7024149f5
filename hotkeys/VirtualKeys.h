// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>

namespace tonquil {

/// The virtual key codes that the code uses by name. They number physical key positions, not
/// labels; letters, digits and punctuation are only in the lookup table.
namespace VirtualKey {
inline constexpr std::uint16_t returnKey = 36;
inline constexpr std::uint16_t tab = 48;
inline constexpr std::uint16_t space = 49;
inline constexpr std::uint16_t backspace = 51;
inline constexpr std::uint16_t escape = 53;
inline constexpr std::uint16_t rightCommand = 54;
inline constexpr std::uint16_t command = 55;
inline constexpr std::uint16_t shift = 56;
inline constexpr std::uint16_t capsLock = 57;
inline constexpr std::uint16_t option = 58;
inline constexpr std::uint16_t control = 59;
inline constexpr std::uint16_t rightShift = 60;
inline constexpr std::uint16_t rightOption = 61;
inline constexpr std::uint16_t rightControl = 62;
inline constexpr std::uint16_t function = 63;
inline constexpr std::uint16_t f17 = 64;
inline constexpr std::uint16_t volumeUp = 72;
inline constexpr std::uint16_t volumeDown = 73;
inline constexpr std::uint16_t mute = 74;
inline constexpr std::uint16_t f18 = 79;
inline constexpr std::uint16_t f19 = 80;
inline constexpr std::uint16_t f20 = 90;
inline constexpr std::uint16_t f5 = 96;
inline constexpr std::uint16_t f6 = 97;
inline constexpr std::uint16_t f7 = 98;
inline constexpr std::uint16_t f3 = 99;
inline constexpr std::uint16_t f8 = 100;
inline constexpr std::uint16_t f9 = 101;
inline constexpr std::uint16_t f11 = 103;
inline constexpr std::uint16_t f13 = 105;
inline constexpr std::uint16_t f16 = 106;
inline constexpr std::uint16_t f14 = 107;
inline constexpr std::uint16_t f10 = 109;
inline constexpr std::uint16_t f12 = 111;
inline constexpr std::uint16_t f15 = 113;
inline constexpr std::uint16_t home = 115;
inline constexpr std::uint16_t pageUp = 116;
inline constexpr std::uint16_t forwardDelete = 117;
inline constexpr std::uint16_t f4 = 118;
inline constexpr std::uint16_t end = 119;
inline constexpr std::uint16_t f2 = 120;
inline constexpr std::uint16_t pageDown = 121;
inline constexpr std::uint16_t f1 = 122;
inline constexpr std::uint16_t leftArrow = 123;
inline constexpr std::uint16_t rightArrow = 124;
inline constexpr std::uint16_t downArrow = 125;
inline constexpr std::uint16_t upArrow = 126;
}  // namespace VirtualKey

/// The evdev code of a key; the X keycode is this plus 8. Nothing for a key that is not among
/// evdev's first 247 codes, such as the function (fn) key.
[[nodiscard]] std::optional<std::uint8_t> evdevForVirtualKey(std::uint16_t keyCode);
/// The virtual key code of an evdev code; nothing for keys without one, such as Print Screen.
[[nodiscard]] std::optional<std::uint16_t> virtualKeyForEvdev(std::uint32_t evdevCode);

/// Whether a key counts as having a modifier on its own (`ModifierFlag::function`): function, arrow
/// and navigation keys, which produce no text.
[[nodiscard]] bool isFunctionKey(std::uint16_t keyCode);
/// Whether a key is a modifier, on either side, or caps lock.
[[nodiscard]] bool isModifierKey(std::uint16_t keyCode);

}  // namespace tonquil
