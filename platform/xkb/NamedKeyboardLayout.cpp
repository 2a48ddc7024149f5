// SPDX-License-Identifier: MIT
#include "platform/xkb/NamedKeyboardLayout.h"

#include "platform/xkb/KeymapCharacter.h"

namespace tonquil {

Result<std::unique_ptr<NamedKeyboardLayout>> NamedKeyboardLayout::open(const std::string& name) {
    std::string sentence = "There is no keyboard layout named ";
    sentence.append(name).append(".");
    const XkbContext context(xkb_context_new(XKB_CONTEXT_NO_ENVIRONMENT_NAMES));
    if (!context) {
        return problem(sentence, "xkbcommon gives no context.");
    }
    // An unknown name is reported by the result, not on standard error.
    xkb_context_set_log_level(context.get(), XKB_LOG_LEVEL_CRITICAL);
    xkb_rule_names names{};
    names.rules = "evdev";
    names.model = "pc105";
    names.layout = name.c_str();
    XkbKeymap keymap(xkb_keymap_new_from_names(context.get(), &names, XKB_KEYMAP_COMPILE_NO_FLAGS));
    if (!keymap) {
        return problem(sentence);
    }
    return std::unique_ptr<NamedKeyboardLayout>(new NamedKeyboardLayout(std::move(keymap)));
}

std::string NamedKeyboardLayout::character(std::uint16_t keyCode) const {
    return keymapCharacter(*_keymap, 0, keyCode);
}

}  // namespace tonquil
