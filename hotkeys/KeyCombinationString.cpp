// SPDX-License-Identifier: MIT
#include "hotkeys/KeyCombinationString.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <unordered_map>

#include "hotkeys/VirtualKeys.h"

namespace tonquil {

namespace {

using Glyphs = std::unordered_map<std::uint16_t, std::string_view>;

struct ModifierGlyph {
    ModifierFlags flag;
    std::uint16_t keyCode;
};

constexpr std::array<ModifierGlyph, 4> modifierGlyphs{{
    {ModifierFlag::control, VirtualKey::control},
    {ModifierFlag::option, VirtualKey::option},
    {ModifierFlag::shift, VirtualKey::shift},
    {ModifierFlag::command, VirtualKey::command},
}};

const Glyphs& glyphs() {
    static const Glyphs table{
        {VirtualKey::returnKey, "↩"},
        {VirtualKey::tab, "⇥"},
        {VirtualKey::space, "⎵"},
        {VirtualKey::backspace, "⌫"},
        {VirtualKey::escape, "⎋"},
        {VirtualKey::command, "⌘"},
        {VirtualKey::shift, "⇧"},
        {VirtualKey::capsLock, "⇪"},
        {VirtualKey::option, "⌥"},
        {VirtualKey::control, "⌃"},
        {VirtualKey::rightShift, "⇧"},
        {VirtualKey::rightOption, "⌥"},
        {VirtualKey::rightControl, "⌃"},
        // Deliberately the same glyph as the command key.
        {VirtualKey::function, "⌘"},
        {VirtualKey::volumeUp, "🔊"},
        {VirtualKey::volumeDown, "🔈"},
        {VirtualKey::mute, "🔇"},
        {VirtualKey::forwardDelete, "⌦"},
        {VirtualKey::home, "↖"},
        {VirtualKey::end, "↘"},
        {VirtualKey::pageUp, "⇞"},
        {VirtualKey::pageDown, "⇟"},
        {VirtualKey::leftArrow, "←"},
        {VirtualKey::rightArrow, "→"},
        {VirtualKey::downArrow, "↓"},
        {VirtualKey::upArrow, "↑"},
        {VirtualKey::f1, "F1"},
        {VirtualKey::f2, "F2"},
        {VirtualKey::f3, "F3"},
        {VirtualKey::f4, "F4"},
        {VirtualKey::f5, "F5"},
        {VirtualKey::f6, "F6"},
        {VirtualKey::f7, "F7"},
        {VirtualKey::f8, "F8"},
        {VirtualKey::f9, "F9"},
        {VirtualKey::f10, "F10"},
        {VirtualKey::f11, "F11"},
        {VirtualKey::f12, "F12"},
        {VirtualKey::f13, "F13"},
        {VirtualKey::f14, "F14"},
        {VirtualKey::f15, "F15"},
        {VirtualKey::f16, "F16"},
        {VirtualKey::f17, "F17"},
        {VirtualKey::f18, "F18"},
        {VirtualKey::f19, "F19"},
        {VirtualKey::f20, "F20"},
    };
    return table;
}

}  // namespace

std::string keyCombinationString(std::uint16_t keyCode, ModifierFlags modifierFlags,
                                 const KeyboardLayout& layout) {
    std::string text;
    for (const auto& modifier : modifierGlyphs) {
        if ((modifierFlags & modifier.flag) != 0) {
            text.append(glyphs().at(modifier.keyCode));
        }
    }
    const bool isModifier =
        std::any_of(modifierGlyphs.begin(), modifierGlyphs.end(),
                    [keyCode](const ModifierGlyph& each) { return each.keyCode == keyCode; });
    if (isModifier) {
        return text;
    }
    const auto glyph = glyphs().find(keyCode);
    return text.append(glyph != glyphs().end() ? std::string(glyph->second)
                                               : layout.character(keyCode));
}

}  // namespace tonquil
