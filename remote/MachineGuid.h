// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "remote/LocalHost.h"

namespace tonquil {

/// The ID by which companions tell computers apart: the hardware address as twelve lower-case
/// hexadecimal digits.
///
/// One instance for the program's lifetime. The first answer is kept, even if it is empty because
/// the address could not be read.
class MachineGuid {
 public:
    [[nodiscard]] const std::string& text(const LocalHost& host);

 private:
    std::optional<std::string> _text;
};

}  // namespace tonquil
