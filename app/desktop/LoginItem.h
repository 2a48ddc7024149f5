// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

#include "foundation/Problem.h"

namespace tonquil {

/// Whether the desktop starts this program at login.
class LoginItem {
 public:
    virtual ~LoginItem() = default;

    /// As the desktop has it now, whoever changed it.
    [[nodiscard]] virtual bool isEnabled() const = 0;
    /// Asking for what is so already is no failure.
    [[nodiscard]] virtual Result<void> setEnabled(bool isEnabled) = 0;
};

/// Whether a program at the absolute path `program` is likely to be there at the next login: below
/// /usr, /opt, `home`/.local or `home`/Applications, or anywhere with "/Applications/" in its path.
/// `home` may be empty.
[[nodiscard]] bool isInstalledReliably(const std::filesystem::path& program,
                                       const std::filesystem::path& home);

}  // namespace tonquil
