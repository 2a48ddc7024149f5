// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>

#include "hotkeys/KeyboardLayout.h"

namespace tonquil {

/// A keyboard with few keys: A, and an empty text on the German layout's acute accent key.
class TableLayout final : public KeyboardLayout {
 public:
    [[nodiscard]] std::string character(std::uint16_t keyCode) const override {
        const auto key = _characters.find(keyCode);
        return key != _characters.end() ? key->second : std::string();
    }
    void set(std::uint16_t keyCode, const std::string& text) { _characters[keyCode] = text; }

 private:
    std::map<std::uint16_t, std::string> _characters{{0, "a"}, {12, "q"}};
};

}  // namespace tonquil
