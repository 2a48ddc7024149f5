// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <utility>

#include "foundation/Problem.h"
#include "hotkeys/KeyboardLayout.h"
#include "platform/xkb/XkbPointers.h"

namespace tonquil {

/// A fixed layout, by its name in keyboard settings.
class NamedKeyboardLayout final : public KeyboardLayout {
 public:
    /// For example "us", or "us,de" of which the first counts. Fails if there is none of that name.
    [[nodiscard]] static Result<std::unique_ptr<NamedKeyboardLayout>> open(const std::string& name);

    [[nodiscard]] std::string character(std::uint16_t keyCode) const override;

 private:
    explicit NamedKeyboardLayout(XkbKeymap keymap) : _keymap(std::move(keymap)) {}

    XkbKeymap _keymap;
};

}  // namespace tonquil
