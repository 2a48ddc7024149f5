// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

#include "foundation/Problem.h"

namespace tonquil {

/// Controls whether the desktop starts this program at login.
class LoginItem {
 public:
    virtual ~LoginItem() = default;

    /// The current state, even if another program changed it.
    [[nodiscard]] virtual bool isEnabled() const = 0;
    /// Setting the current state again is not an error.
    [[nodiscard]] virtual Result<void> setEnabled(bool isEnabled) = 0;
};

/// Whether a program at the absolute path `program` will probably still exist at the next login:
/// below /usr, /opt, `home`/.local or `home`/Applications, or anywhere with "/Applications/" in its
/// path. `home` may be empty.
[[nodiscard]] bool isInstalledReliably(const std::filesystem::path& program,
                                       const std::filesystem::path& home);

}  // namespace tonquil
