// SPDX-License-Identifier: MIT
#pragma once

#include <xkbcommon/xkbcommon.h>

#include <memory>

namespace tonquil {

struct ReleaseXkb {
    void operator()(xkb_context* context) const { xkb_context_unref(context); }
    void operator()(xkb_keymap* keymap) const { xkb_keymap_unref(keymap); }
    void operator()(xkb_state* state) const { xkb_state_unref(state); }
};

using XkbContext = std::unique_ptr<xkb_context, ReleaseXkb>;
using XkbKeymap = std::unique_ptr<xkb_keymap, ReleaseXkb>;
using XkbState = std::unique_ptr<xkb_state, ReleaseXkb>;

}  // namespace tonquil
