// SPDX-License-Identifier: MIT
#include "platform/portal/PreferredTrigger.h"

#include <array>
#include <string_view>
#include <utility>

#include "hotkeys/VirtualKeys.h"
#include "platform/xkb/XkbPointers.h"

namespace tonquil {

namespace {

/// The key's symbol without modifiers, by the name that the keyboard library has for it.
std::string symbolName(std::uint8_t evdevCode) {
    // The offset of X key codes.
    constexpr xkb_keycode_t firstKeyCode = 8;
    const XkbContext context(xkb_context_new(XKB_CONTEXT_NO_FLAGS));
    if (!context) {
        return {};
    }
    const XkbKeymap keymap(
        xkb_keymap_new_from_names(context.get(), nullptr, XKB_KEYMAP_COMPILE_NO_FLAGS));
    const xkb_keysym_t* symbols = nullptr;
    if (!keymap || xkb_keymap_key_get_syms_by_level(keymap.get(), evdevCode + firstKeyCode, 0, 0,
                                                    &symbols) != 1) {
        return {};
    }
    std::array<char, 64> name{};
    return xkb_keysym_get_name(*symbols, name.data(), name.size()) > 0 ? name.data() : "";
}

}  // namespace

std::string preferredTrigger(std::uint16_t keyCode, HotKeyServiceMask modifiers) {
    constexpr std::array<std::pair<HotKeyServiceMask, std::string_view>, 4> names{{
        {HotKeyServiceModifier::control, "CTRL+"},
        {HotKeyServiceModifier::option, "ALT+"},
        {HotKeyServiceModifier::shift, "SHIFT+"},
        {HotKeyServiceModifier::command, "LOGO+"},
    }};
    const auto evdevCode = evdevForVirtualKey(keyCode);
    const std::string symbol = evdevCode ? symbolName(*evdevCode) : std::string();
    if (symbol.empty()) {
        return {};
    }
    std::string trigger;
    for (const auto& [modifier, name] : names) {
        if ((modifiers & modifier) != 0) {
            trigger += name;
        }
    }
    return trigger + symbol;
}

}  // namespace tonquil
