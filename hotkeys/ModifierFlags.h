// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace tonquil {

/// Modifier flags of events and hot keys, on every platform.
using ModifierFlags = std::uint64_t;

namespace ModifierFlag {
inline constexpr ModifierFlags capsLock = 0x10000;
inline constexpr ModifierFlags shift = 0x20000;
inline constexpr ModifierFlags control = 0x40000;
inline constexpr ModifierFlags option = 0x80000;    ///< Alt.
inline constexpr ModifierFlags command = 0x100000;  ///< Super.
inline constexpr ModifierFlags numericPad = 0x200000;
/// Set for function, arrow and navigation keys even without any modifier.
inline constexpr ModifierFlags function = 0x800000;
}  // namespace ModifierFlag

/// Modifiers in the format of the hot-key service.
using HotKeyServiceMask = std::uint32_t;

namespace HotKeyServiceModifier {
inline constexpr HotKeyServiceMask command = 0x100;
inline constexpr HotKeyServiceMask shift = 0x200;
inline constexpr HotKeyServiceMask option = 0x800;
inline constexpr HotKeyServiceMask control = 0x1000;
}  // namespace HotKeyServiceModifier

/// Converts `flags` to the service's mask, dropping flags other than the four modifiers.
[[nodiscard]] constexpr HotKeyServiceMask hotKeyServiceMask(ModifierFlags flags) {
    HotKeyServiceMask mask = 0;
    mask |= (flags & ModifierFlag::command) != 0 ? HotKeyServiceModifier::command : 0;
    mask |= (flags & ModifierFlag::shift) != 0 ? HotKeyServiceModifier::shift : 0;
    mask |= (flags & ModifierFlag::option) != 0 ? HotKeyServiceModifier::option : 0;
    mask |= (flags & ModifierFlag::control) != 0 ? HotKeyServiceModifier::control : 0;
    return mask;
}

}  // namespace tonquil
