// SPDX-License-Identifier: MIT
#include "platform/x11/keys/X11Modifiers.h"

#include <algorithm>
#include <array>
#include <span>

namespace tonquil {

namespace {

constexpr xcb_keysym_t altLeft = 0xFFE9;
constexpr xcb_keysym_t altRight = 0xFFEA;
constexpr xcb_keysym_t superLeft = 0xFFEB;
constexpr xcb_keysym_t superRight = 0xFFEC;
constexpr xcb_keysym_t numLockKey = 0xFF7F;
constexpr xcb_keysym_t scrollLockKey = 0xFF14;

constexpr std::uint16_t allModifiers = 0xFF;

// The symbols of each key code, `symbolsPerKey` at a time.
struct Symbols {
    std::span<const xcb_keysym_t> all;
    std::size_t symbolsPerKey;
    xcb_keycode_t firstKey;

    [[nodiscard]] bool has(xcb_keycode_t key, xcb_keysym_t wanted) const {
        const std::size_t start = std::size_t{key} * symbolsPerKey;
        const std::size_t offset = std::size_t{firstKey} * symbolsPerKey;
        if (start < offset || start - offset + symbolsPerKey > all.size()) {
            return false;
        }
        const auto own = all.subspan(start - offset, symbolsPerKey);
        return std::find(own.begin(), own.end(), wanted) != own.end();
    }
};

// The mask of the first modifier set by a key with one of these symbols; 0 for none. `keys` are
// those of each modifier in turn.
std::uint16_t modifierOf(std::span<const xcb_keycode_t> keys, std::size_t keysPerModifier,
                         const Symbols& symbols, std::initializer_list<xcb_keysym_t> wanted) {
    // Shift, Lock and Control have fixed positions before these.
    for (std::size_t modifier = XCB_MAP_INDEX_1; modifier <= XCB_MAP_INDEX_5; ++modifier) {
        for (const auto key : keys.subspan(modifier * keysPerModifier, keysPerModifier)) {
            if (std::any_of(wanted.begin(), wanted.end(),
                            [&](xcb_keysym_t each) { return symbols.has(key, each); })) {
                return static_cast<std::uint16_t>(1U << modifier);
            }
        }
    }
    return 0;
}

}  // namespace

X11Modifiers X11Modifiers::read(const X11Connection& connection) {
    const xcb_setup_t* const setup = xcb_get_setup(connection.get());
    const auto mapCookie = xcb_get_modifier_mapping(connection.get());
    const auto symbolsCookie = xcb_get_keyboard_mapping(
        connection.get(), setup->min_keycode,
        static_cast<std::uint8_t>(setup->max_keycode - setup->min_keycode + 1));
    const XcbPointer<xcb_get_modifier_mapping_reply_t> map(
        xcb_get_modifier_mapping_reply(connection.get(), mapCookie, nullptr));
    const XcbPointer<xcb_get_keyboard_mapping_reply_t> symbolsReply(
        xcb_get_keyboard_mapping_reply(connection.get(), symbolsCookie, nullptr));
    if (!map || !symbolsReply) {
        return {};
    }
    const Symbols symbols{
        {xcb_get_keyboard_mapping_keysyms(symbolsReply.get()),
         static_cast<std::size_t>(xcb_get_keyboard_mapping_keysyms_length(symbolsReply.get()))},
        symbolsReply->keysyms_per_keycode,
        setup->min_keycode};
    const std::span<const xcb_keycode_t> keys(
        xcb_get_modifier_mapping_keycodes(map.get()),
        static_cast<std::size_t>(xcb_get_modifier_mapping_keycodes_length(map.get())));
    const auto modifierWith = [&](std::initializer_list<xcb_keysym_t> wanted) {
        return modifierOf(keys, map->keycodes_per_modifier, symbols, wanted);
    };
    X11Modifiers modifiers;
    modifiers.option = modifierWith({altLeft, altRight});
    modifiers.command = modifierWith({superLeft, superRight});
    modifiers.numLock = modifierWith({numLockKey});
    modifiers.scrollLock = modifierWith({scrollLockKey});
    return modifiers;
}

std::optional<std::uint16_t> X11Modifiers::state(HotKeyServiceMask modifiers) const {
    struct Row {
        HotKeyServiceMask modifier;
        std::uint16_t state;
    };
    std::uint16_t result = 0;
    for (const Row& row : {Row{HotKeyServiceModifier::shift, XCB_MOD_MASK_SHIFT},
                           Row{HotKeyServiceModifier::control, XCB_MOD_MASK_CONTROL},
                           Row{HotKeyServiceModifier::option, option},
                           Row{HotKeyServiceModifier::command, command}}) {
        if ((modifiers & row.modifier) != 0) {
            if (row.state == 0) {
                return std::nullopt;
            }
            result = static_cast<std::uint16_t>(result | row.state);
        }
    }
    return result;
}

ModifierFlags X11Modifiers::flags(std::uint16_t state) const {
    ModifierFlags result = 0;
    result |= (state & XCB_MOD_MASK_SHIFT) != 0 ? ModifierFlag::shift : 0;
    result |= (state & XCB_MOD_MASK_LOCK) != 0 ? ModifierFlag::capsLock : 0;
    result |= (state & XCB_MOD_MASK_CONTROL) != 0 ? ModifierFlag::control : 0;
    result |= (state & option) != 0 ? ModifierFlag::option : 0;
    result |= (state & command) != 0 ? ModifierFlag::command : 0;
    return result;
}

std::uint16_t X11Modifiers::locks() const {
    // If a lock shares its modifier with one of a combination, the two cannot be distinguished.
    return static_cast<std::uint16_t>((XCB_MOD_MASK_LOCK | numLock | scrollLock) &
                                      ~(option | command));
}

std::uint16_t X11Modifiers::held(std::uint16_t state) const {
    return static_cast<std::uint16_t>(state & allModifiers & ~locks());
}

std::vector<std::uint16_t> X11Modifiers::lockStates() const {
    const std::uint16_t all = locks();
    std::vector<std::uint16_t> states;
    for (std::uint16_t state = 0; state <= allModifiers; ++state) {
        if ((state & ~all) == 0) {
            states.push_back(state);
        }
    }
    return states;
}

}  // namespace tonquil
