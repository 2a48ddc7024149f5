// SPDX-License-Identifier: MIT
#include "hotkeys/field/QtKeys.h"

#include <QKeyEvent>

#include "hotkeys/VirtualKeys.h"

namespace tonquil {

std::optional<std::uint16_t> virtualKeyCode(const QKeyEvent& event) {
    // Scan codes start here on both X11 and Wayland.
    constexpr quint32 firstScanCode = 8;
    if (event.nativeScanCode() < firstScanCode) {
        return std::nullopt;
    }
    return virtualKeyForEvdev(event.nativeScanCode() - firstScanCode);
}

ModifierFlags modifierFlags(const QKeyEvent& event) {
    const Qt::KeyboardModifiers held = event.modifiers();
    ModifierFlags flags = 0;
    flags |= held.testFlag(Qt::ShiftModifier) ? ModifierFlag::shift : 0;
    flags |= held.testFlag(Qt::ControlModifier) ? ModifierFlag::control : 0;
    flags |= held.testFlag(Qt::AltModifier) ? ModifierFlag::option : 0;
    flags |= held.testFlag(Qt::MetaModifier) ? ModifierFlag::command : 0;
    flags |= held.testFlag(Qt::KeypadModifier) ? ModifierFlag::numericPad : 0;
    const auto keyCode = virtualKeyCode(event);
    flags |= keyCode && isFunctionKey(*keyCode) ? ModifierFlag::function : 0;
    return flags;
}

// A layout may put a layout switch on a modifier, alone or combined with another one, and Qt has no
// name for it. Then decide by scan code or by the X keysym. The scan code alone is not enough: a
// layout can map caps lock to Escape.
bool isModifierEvent(const QKeyEvent& event) {
    // XKB_KEY_ISO_Lock to XKB_KEY_ISO_Level5_Lock.
    constexpr quint32 firstLevelOrGroup = 0xFE01;
    constexpr quint32 lastLevelOrGroup = 0xFE13;
    const auto keyCode = virtualKeyCode(event);
    const bool hasName = event.key() != 0 && event.key() != Qt::Key_unknown;
    const quint32 keysym = event.nativeVirtualKey();
    if ((!hasName && keyCode && isModifierKey(*keyCode)) ||
        (keysym >= firstLevelOrGroup && keysym <= lastLevelOrGroup)) {
        return true;
    }
    switch (event.key()) {
        case Qt::Key_Shift:
        case Qt::Key_Control:
        case Qt::Key_Meta:
        case Qt::Key_Alt:
        case Qt::Key_AltGr:
        case Qt::Key_CapsLock:
        case Qt::Key_NumLock:
        case Qt::Key_ScrollLock:
        case Qt::Key_Super_L:
        case Qt::Key_Super_R:
        case Qt::Key_Hyper_L:
        case Qt::Key_Hyper_R:
        case Qt::Key_Mode_switch:
        case Qt::Key_Multi_key:
            return true;
        default:
            return false;
    }
}

}  // namespace tonquil
