// SPDX-License-Identifier: MIT
#include "platform/xkb/KeymapCharacter.h"

#include <xkbcommon/xkbcommon-keysyms.h>

#include <array>

#include "hotkeys/VirtualKeys.h"
#include "platform/xkb/XkbPointers.h"

namespace tonquil {

namespace {

// The offset of X key codes.
constexpr xkb_keycode_t firstKeyCode = 8;

// A keypad key's function without Num Lock.
bool isPadCommand(xkb_keysym_t symbol) {
    return symbol >= XKB_KEY_KP_Home && symbol <= XKB_KEY_KP_Delete;
}

bool isVisible(xkb_keysym_t symbol) {
    constexpr std::uint32_t firstVisible = 0x20;
    constexpr std::uint32_t deleteCharacter = 0x7F;
    constexpr std::uint32_t firstAfterControls = 0xA0;
    const std::uint32_t character = xkb_keysym_to_utf32(symbol);
    return character >= firstVisible &&
           (character < deleteCharacter || character >= firstAfterControls);
}

std::string text(xkb_keysym_t symbol) {
    std::array<char, 8> bytes{};
    if (!isVisible(symbol) || xkb_keysym_to_utf8(symbol, bytes.data(), bytes.size()) <= 0) {
        return {};
    }
    return bytes.data();
}

// The symbol with these modifiers locked, and none held.
xkb_keysym_t symbolWith(xkb_keymap& keymap, xkb_layout_index_t layout, xkb_mod_mask_t locked,
                        xkb_keycode_t key) {
    const XkbState state(xkb_state_new(&keymap));
    if (!state) {
        return XKB_KEY_NoSymbol;
    }
    xkb_state_update_mask(state.get(), 0, 0, locked, 0, 0, layout);
    return xkb_state_key_get_one_sym(state.get(), key);
}

}  // namespace

std::string keymapCharacter(xkb_keymap& keymap, xkb_layout_index_t layout, std::uint16_t keyCode) {
    const auto evdevCode = evdevForVirtualKey(keyCode);
    if (!evdevCode) {
        return {};
    }
    const xkb_keycode_t key = *evdevCode + firstKeyCode;
    xkb_keysym_t symbol = symbolWith(keymap, layout, 0, key);
    if (isPadCommand(symbol)) {
        const auto numLock = xkb_keymap_mod_get_index(&keymap, XKB_MOD_NAME_NUM);
        const xkb_mod_mask_t locked =
            numLock != XKB_MOD_INVALID ? xkb_mod_mask_t{1} << numLock : xkb_mod_mask_t{0};
        symbol = symbolWith(keymap, layout, locked, key);
    }
    return text(symbol);
}

}  // namespace tonquil
