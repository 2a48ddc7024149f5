// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <map>
#include <string>

#include "app/preferences/StoredHotKey.h"

namespace tonquil {

/// Who gives the hot keys their keys.
enum class HotKeyChooser : std::uint8_t {
    Program,  ///< The user, by recording combinations in the preferences.
    Desktop,  ///< The user, in a dialog of the desktop.
    Nobody,   ///< Nobody: the user must bind command lines to keys in the desktop's settings.
};

/// What the preferences show of the hot keys besides the recorded combinations.
struct HotKeyAssignment {
    HotKeyChooser chooser = HotKeyChooser::Program;
    /// The keys that the desktop has given, in its words.
    std::map<HotKeyRole, std::string> triggers = {};
};

}  // namespace tonquil
