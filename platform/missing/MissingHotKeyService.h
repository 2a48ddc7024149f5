// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/TranslatableText.h"
#include "hotkeys/HotKeyService.h"

namespace tonquil {

/// Used where global hot keys are impossible; refuses every combination.
class MissingHotKeyService final : public HotKeyService {
 public:
    void setHandlers(Handler /*pressed*/, Handler /*released*/) override {}
    [[nodiscard]] Result<HotKeyHandle> registerHotKey(std::uint16_t /*keyCode*/,
                                                      HotKeyServiceMask /*modifiers*/,
                                                      std::uint32_t /*id*/,
                                                      const std::string& /*action*/) override {
        return problem(TONQUIL_TEXT(
            "Problem", "Key combinations for all programs are not available on this desktop."));
    }
    void unregisterHotKey(HotKeyHandle /*handle*/) override {}
};

}  // namespace tonquil
